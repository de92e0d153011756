#include "language/Translations.h"

#include "language/EnglishPlurals.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace selfsame
{

QString catalogueLanguage(const QStringList &preferredLanguages)
{
    static const QStringList withCatalogue = {QStringLiteral("de"), QStringLiteral("fr")};
    for (const QString &name : preferredLanguages) {
        const QString language =
            name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
        if (withCatalogue.contains(language)) return language;
        if (language == u"en" || language == u"c" || language == u"posix") return {};
    }
    return {};
}

bool loadCatalogue(QTranslator *translator, const QString &language)
{
    return translator->load(QStringLiteral(":/selfsame/translations/selfsame_") + language);
}

QString installTranslations(QCoreApplication *app)
{
    // Installed first, so consulted last: a catalogue's own plural forms win.
    QCoreApplication::installTranslator(new EnglishPlurals(app));
    const QString language = catalogueLanguage(QLocale::system().uiLanguages());
    if (language.isEmpty()) return {};
    auto *qtTexts = new QTranslator(app);
    if (qtTexts->load(QStringLiteral("qtbase_") + language,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qtTexts);
    else
        delete qtTexts;
    auto *ownTexts = new QTranslator(app);
    if (!loadCatalogue(ownTexts, language)) {
        delete ownTexts;
        return {};
    }
    QCoreApplication::installTranslator(ownTexts);
    return language;
}

} // namespace selfsame
