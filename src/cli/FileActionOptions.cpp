#include "FileActionOptions.h"

#include "CliPaths.h"
#include "CliText.h"
#include "fileops/Replacement.h"

#include <QCoreApplication>

namespace selfsame::cli
{

namespace
{

int replaceMode(const QString &name)
{
    static const QStringList names = {QStringLiteral("alias"), QStringLiteral("symlink"),
                                      QStringLiteral("relative-symlink"), QStringLiteral("hardlink"),
                                      QStringLiteral("clone")};
    return int(names.indexOf(name)) + 1; // 0 when unknown; the order is ReplaceWithMode's
}

} // namespace

QString takeFileActionOptions(QStringList &arguments, FileActionOptions *options, bool *given)
{
    QStringList rest;
    bool yes = false, dryRun = false;
    *given = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        QString argument = arguments[i];
        if (argument == u"--") {
            rest << arguments.mid(i);
            break;
        }
        QString value;
        const bool takesValue = argument.startsWith(QStringLiteral("--replace-with")) ||
                                argument.startsWith(QStringLiteral("--plan"));
        if (takesValue && argument.contains(u'=')) {
            value = argument.section(u'=', 1);
            argument = argument.section(u'=', 0, 0);
        } else if (takesValue && (argument == u"--replace-with" || argument == u"--plan")) {
            if (++i == arguments.size()) return CliText::tr("option %1 needs a value").arg(argument);
            value = arguments[i];
        }
        if (argument == u"--trash" || argument == u"--delete") {
            const FileAction action = argument == u"--trash" ? FileAction::Trash : FileAction::Delete;
            if (options->action != FileAction::None && options->action != action)
                return CliText::tr("give only one of --trash and --delete");
            options->action = action;
            *given = true;
        } else if (argument == u"--replace-with") {
            options->replaceWith = replaceMode(value);
            if (options->replaceWith == ReplaceWithNone)
                return CliText::tr(
                           "--replace-with takes symlink, relative-symlink, hardlink, clone or alias, not "
                           "'%1'")
                    .arg(value);
            *given = true;
        } else if (argument == u"--plan") {
            options->planPath = absolutePath(value);
        } else if (argument == u"--yes") {
            yes = true;
        } else if (argument == u"--dry-run") {
            dryRun = true;
        } else {
            rest << arguments[i];
        }
    }
    if (!*given && (yes || dryRun || !options->planPath.isEmpty()))
        return CliText::tr("--yes, --dry-run and --plan go with --trash, --delete or --replace-with");
    if (!options->planPath.isEmpty() &&
        (options->replaceWith != ReplaceWithClone || options->action != FileAction::None))
        return CliText::tr("--plan goes with --replace-with clone alone");
    options->perform = yes && !dryRun;
    arguments = rest;
    return {};
}

QString fileActionUsageText()
{
    return CliText::tr(
        "Acting on the copies that --select selects (never on a group's last copy):\n"
        "  --trash                    move them to the trash\n"
        "  --delete                   delete them for good\n"
        "  --replace-with MODE        symlink, relative-symlink, hardlink, clone or alias to the\n"
        "                             group's kept copy; alone, clone shares storage in place and\n"
        "                             a link mode deletes the copy and puts the link at its path\n"
        "  --plan FILE                write the cloning plan there (--replace-with clone alone)\n"
        "  --yes                      act; without it the actions are only shown (--dry-run)\n"
        "With --print0 standard output lists only the path of each copy acted on (or that would be),\n"
        "each as its exact bytes ended by a NUL; a clone dry run then shows no plan (see --plan).\n"
        "Failures and counts go to standard error as usual.\n"
        "Exit status with an action: 0 all done (or would be), 1 anything failed or was refused.\n");
}

} // namespace selfsame::cli
