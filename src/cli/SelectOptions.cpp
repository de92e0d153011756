#include "SelectOptions.h"

#include "CliPaths.h"
#include "CliText.h"

#include <QCoreApplication>

namespace selfsame::cli
{

namespace
{

struct Flag {
    const char *option;
    int rule;
    int value;
};

// Flags that choose a condition of the folder or tag rule.
const Flag kLocations[] = {{"--inside", InsideFolder, DirectlyInside},
                           {"--inside-any-depth", InsideFolder, InsideAtAnyDepth},
                           {"--outside", InsideFolder, NotDirectlyInside},
                           {"--outside-any-depth", InsideFolder, OutsideAtAnyDepth}};
const Flag kDateCriteria[] = {{"--if-newer", InsideFolder, LaterDate},
                              {"--if-older", InsideFolder, EarlierDate},
                              {"--if-same-date", InsideFolder, SameDate}};
const Flag kTagConditions[] = {{"--having", ByTag, HavingTag},
                               {"--any-tag", ByTag, HavingAnyTag},
                               {"--not-having", ByTag, NotHavingTag},
                               {"--no-tag", ByTag, HavingNoTag}};

template <std::size_t N> const Flag *find(const Flag (&flags)[N], const QString &option)
{
    for (const Flag &flag : flags)
        if (option == QLatin1String(flag.option)) return &flag;
    return nullptr;
}

int ruleNamed(const QString &name)
{
    if (name == QLatin1String("same-folder-name")) return SameFolderSameName;
    if (name == QLatin1String("same-folder")) return SameFolderWhateverName;
    if (name == QLatin1String("folder")) return InsideFolder;
    if (name == QLatin1String("tag")) return ByTag;
    if (name == QLatin1String("largest-picture")) return LargestPicture;
    if (name == QLatin1String("highest-bitrate")) return BestRecording;
    if (name == QLatin1String("contained-folders")) return ContainedFolders;
    return -1;
}

// The date pop-up's tag of a date name.
int dateTag(const QString &name)
{
    const char *names[] = {"created", "modified", "last-used", "added"};
    for (int tag = 0; tag < 4; ++tag)
        if (name == QLatin1String(names[tag])) return tag;
    return -1;
}

} // namespace

bool selectRuleTakesFolder(const QString &rule)
{
    return rule == QLatin1String("folder");
}
bool selectRuleMayTakeTag(const QString &rule)
{
    return rule == QLatin1String("tag");
}

bool isSelectOption(const QString &option)
{
    return selectOptionTakesValue(option) || find(kLocations, option) || find(kDateCriteria, option) ||
           find(kTagConditions, option);
}

bool selectOptionTakesValue(const QString &option)
{
    return option == QLatin1String("--keep") || option == QLatin1String("--date");
}

QString selectSettings(const SelectRequest &request, AutoSelectSettings *settings)
{
    AutoSelectSettings s = autoSelectSettingsFrom({});
    s.choice = ruleNamed(request.rule);
    if (s.choice < 0)
        return CliText::tr("unknown rule for --select: '%1' (same-folder-name, same-folder, folder, tag, "
                           "largest-picture, highest-bitrate or contained-folders)")
            .arg(request.rule);
    if (s.choice == InsideFolder) {
        if (!isFolder(request.operand))
            return CliText::tr("--select folder needs an existing folder, not '%1'")
                .arg(escapedText(request.operand));
        s.folder = absolutePath(request.operand);
    }
    s.tagValue = request.operand;
    bool tagless = false;
    for (const auto &[option, value] : request.options) {
        const Flag *flag = find(kLocations, option);
        if (!flag) flag = find(kDateCriteria, option);
        if (!flag) flag = find(kTagConditions, option);
        const bool fits = flag ? flag->rule == s.choice
                          : option == QLatin1String("--keep")
                              ? s.choice == SameFolderWhateverName
                              : s.choice == SameFolderWhateverName || s.choice == InsideFolder;
        if (!fits) return CliText::tr("%1 does not apply to --select %2").arg(option, request.rule);
        if (find(kLocations, option)) {
            s.inside = flag->value;
        } else if (find(kDateCriteria, option)) {
            s.insideOldest = flag->value;
        } else if (flag) {
            s.tagCondition = flag->value;
            tagless = flag->value == HavingAnyTag || flag->value == HavingNoTag;
        } else if (option == QLatin1String("--keep")) {
            if (value != QLatin1String("oldest") && value != QLatin1String("newest"))
                return CliText::tr("--keep takes oldest or newest, not '%1'").arg(value);
            s.oldest = value == QLatin1String("oldest") ? 0 : 1;
        } else {
            const int tag = dateTag(value);
            if (tag < 0)
                return CliText::tr("--date takes created, modified, last-used or added, not '%1'").arg(value);
            s.date = s.insideDate = tag;
        }
    }
    if (s.choice == ByTag && !tagless && request.operand.isEmpty())
        return CliText::tr("--select tag needs a tag name, or --any-tag or --no-tag");
    if (s.choice == ByTag && tagless && !request.operand.isEmpty())
        return CliText::tr("--any-tag and --no-tag take no tag name");
    *settings = s;
    return {};
}

QString selectUsageText()
{
    return CliText::tr(
        "Automatic selection (files are never touched; each path line starts with\n"
        "\"select \" or \"keep \", or two blanks where the rule decided nothing):\n"
        "  --select same-folder-name  in each folder, keep \"name.ext\" and select \"name copy.ext\",\n"
        "                             \"name 2.ext\"…\n"
        "  --select same-folder [--keep oldest|newest] [--date created|modified|last-used|added]\n"
        "                             in each folder keep the oldest (or newest) copy, select the rest\n"
        "  --select folder DIR [--inside|--inside-any-depth|--outside|--outside-any-depth]\n"
        "                  [--if-newer|--if-older|--if-same-date [--date …]]\n"
        "                             select the copies located so relative to DIR (only those\n"
        "                             newer, older or as old as a copy elsewhere), keep the others\n"
        "  --select tag NAME [--having|--not-having]   or   --select tag --any-tag|--no-tag\n"
        "                             select the copies having (or lacking) the tag, keep the others\n"
        "  --select largest-picture   similar pictures: keep the most pixels, then the largest file\n"
        "  --select highest-bitrate   same recordings: keep the highest bit rate, then a lossless format\n"
        "  --select contained-folders with --contained-folders: select each folder whose files all have\n"
        "                             copies in another, keep that other folder\n");
}

} // namespace selfsame::cli
