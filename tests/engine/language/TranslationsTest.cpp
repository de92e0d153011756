// The catalogues built into the programs: which one a session gets, and that they hold real,
// complete translations of texts from all three parts, plural forms included.

#include "language/Translations.h"

#include "attributes/AttributeCatalogue.h"
#include "format/ByteSize.h"
#include "language/EnglishPlurals.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

QString text(const QTranslator &catalogue, const char *context, const char *source, int n = -1)
{
    return catalogue.translate(context, source, nullptr, n);
}

// A catalogue installed for one test only, so that the other tests of the process stay English.
class InstalledCatalogue
{
public:
    explicit InstalledCatalogue(const QString &language)
    {
        static int argc = 1;
        static char name[] = "engine-tests", *argv[] = {name, nullptr};
        if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
        EXPECT_TRUE(loadCatalogue(&m_catalogue, language));
        QCoreApplication::installTranslator(&m_plurals);
        QCoreApplication::installTranslator(&m_catalogue);
    }
    ~InstalledCatalogue()
    {
        QCoreApplication::removeTranslator(&m_catalogue);
        QCoreApplication::removeTranslator(&m_plurals);
    }

private:
    EnglishPlurals m_plurals;
    QTranslator m_catalogue;
};

} // namespace

TEST(CatalogueLanguage, TheFirstLanguageWithACatalogueOrEnglishWins)
{
    EXPECT_EQ(catalogueLanguage({QStringLiteral("de-DE"), QStringLiteral("de")}), QStringLiteral("de"));
    EXPECT_EQ(catalogueLanguage({QStringLiteral("fr_CA")}), QStringLiteral("fr"));
    EXPECT_EQ(catalogueLanguage({QStringLiteral("FR")}), QStringLiteral("fr"));
    // A language without a catalogue gives way to the next preferred one.
    EXPECT_EQ(catalogueLanguage({QStringLiteral("ja-JP"), QStringLiteral("ja"), QStringLiteral("fr")}),
              QStringLiteral("fr"));
    // English before German means English, as does the C locale or no preference at all.
    EXPECT_EQ(catalogueLanguage({QStringLiteral("en-GB"), QStringLiteral("de")}), QString());
    EXPECT_EQ(catalogueLanguage({QStringLiteral("C"), QStringLiteral("de")}), QString());
    EXPECT_EQ(catalogueLanguage({QStringLiteral("ja-JP")}), QString());
    EXPECT_EQ(catalogueLanguage({}), QString());
    // "deu" or "french" are no language codes Selfsame has a catalogue for.
    EXPECT_EQ(catalogueLanguage({QStringLiteral("french")}), QString());
}

TEST(GermanCatalogue, TranslatesTextsOfTheApplicationTheToolAndTheEngine)
{
    QTranslator german;
    ASSERT_TRUE(loadCatalogue(&german, QStringLiteral("de")));
    EXPECT_EQ(german.language(), QStringLiteral("de_DE"));
    // The application's menus, with their accelerators.
    EXPECT_EQ(text(german, "selfsame::Dupes", "&File"), QStringLiteral("&Datei"));
    EXPECT_EQ(text(german, "selfsame::DupesActions", "Move to &Trash%1"),
              QStringLiteral("In den &Papierkorb verschieben%1"));
    EXPECT_EQ(text(german, "selfsame::SearchOptionsPanel", "Also find duplicate f&olders"),
              QStringLiteral("Auch doppelte &Ordner finden"));
    // The command-line tool's messages.
    EXPECT_EQ(text(german, "SelfsameCli", "unknown option %1"), QStringLiteral("unbekannte Option %1"));
    EXPECT_TRUE(
        text(german, "SelfsameCli", "no folder or file to search").startsWith(QStringLiteral("kein Ordner")));
    // The engine's alerts, journal and search status lines.
    EXPECT_EQ(text(german, "TrashAlerts", "“%1” could not be moved to the Trash."),
              QStringLiteral("„%1“ konnte nicht in den Papierkorb verschoben werden."));
    EXPECT_EQ(text(german, "Undo", "can be undone"), QStringLiteral("rückgängig zu machen"));
    EXPECT_EQ(text(german, "DuplicateSearch", "Sorting files…"), QStringLiteral("Dateien werden sortiert …"));
}

TEST(GermanCatalogue, GivesEachCountItsPluralForm)
{
    QTranslator german;
    ASSERT_TRUE(loadCatalogue(&german, QStringLiteral("de")));
    EXPECT_EQ(text(german, "ResultsStatus", "%Ln file(s)", 1), QStringLiteral("%Ln Datei"));
    EXPECT_EQ(text(german, "ResultsStatus", "%Ln file(s)", 5), QStringLiteral("%Ln Dateien"));
    EXPECT_EQ(text(german, "ResultsStatus", "%Ln file(s)", 0), QStringLiteral("%Ln Dateien"));
    EXPECT_EQ(text(german, "ResultsStatus", "%Ln group(s)", 2), QStringLiteral("%Ln Gruppen"));
}

TEST(FrenchCatalogue, CountsZeroAsOneAndSpacesItsPunctuation)
{
    QTranslator french;
    ASSERT_TRUE(loadCatalogue(&french, QStringLiteral("fr")));
    EXPECT_EQ(text(french, "ResultsStatus", "%Ln file(s)", 0), QStringLiteral("%Ln fichier"));
    EXPECT_EQ(text(french, "ResultsStatus", "%Ln file(s)", 2), QStringLiteral("%Ln fichiers"));
    // A narrow no-break space before the colon, no-break spaces inside the guillemets.
    EXPECT_EQ(text(french, "SelfsameCli", "--anywhere needs a file, not '%1'"),
              QStringLiteral("--anywhere demande un fichier, pas «\u00a0%1\u00a0»"));
    EXPECT_EQ(text(french, "TrashAlerts", "Good to Know!"), QStringLiteral("Bon à savoir\u202f!"));
}

TEST(InstalledCatalogues, CountsAndSizesReadTheSessionLanguage)
{
    {
        InstalledCatalogue german(QStringLiteral("de"));
        EXPECT_EQ(QCoreApplication::translate("ResultsStatus", "%Ln file(s)", nullptr, 1),
                  QStringLiteral("1 Datei"));
        EXPECT_EQ(QCoreApplication::translate("ResultsStatus", "%Ln file(s)", nullptr, 3),
                  QStringLiteral("3 Dateien"));
    }
    {
        InstalledCatalogue french(QStringLiteral("fr"));
        EXPECT_EQ(bytesToString(10'000'000), QStringLiteral("10 Mo"));
        // French unit names are understood, and the English ones of scripts and habits still are.
        EXPECT_EQ(stringToBytes(QStringLiteral("10 Mo")), 10'000'000);
        EXPECT_EQ(stringToBytes(QStringLiteral("10 MB")), 10'000'000);
        EXPECT_EQ(stringToBytes(QStringLiteral("4 Kio")), 4096);
    }
    // Without a catalogue the English forms come from the source texts.
    EnglishPlurals plurals;
    QCoreApplication::installTranslator(&plurals);
    EXPECT_EQ(QCoreApplication::translate("ResultsStatus", "%Ln file(s)", nullptr, 1),
              QStringLiteral("1 file"));
    EXPECT_EQ(bytesToString(10'000'000), QStringLiteral("10 MB"));
    QCoreApplication::removeTranslator(&plurals);
}

TEST(InstalledCatalogues, ShowTheShippedAttributesInTheSessionLanguageAndTheUsersOwnAsTyped)
{
    InstalledCatalogue german(QStringLiteral("de"));
    MemorySettingsStore settings;
    AttributeCatalogue catalogue(AttributeSchema::shipped(), settings);
    EXPECT_EQ(catalogue.displayName(QStringLiteral("kMDItemExposureTimeSeconds")),
              QStringLiteral("Belichtungszeit"));
    EXPECT_EQ(catalogue.description(QStringLiteral("kMDItemAlbum")),
              QStringLiteral("Album, zu dem die Aufnahme gehört"));
    const auto jpeg = catalogue.attributesForFilenameExtension(QStringLiteral("jpg"), true);
    ASSERT_TRUE(jpeg);
    EXPECT_EQ(jpeg->value(QStringLiteral("kMDItemLatitude")).name, QStringLiteral("Breitengrad"));
    ASSERT_TRUE(catalogue.addCustomAttribute(QStringLiteral("kMDItemTitle"),
                                             {QStringLiteral("Title"), QStringLiteral("Mine"), StringType}));
    EXPECT_EQ(catalogue.displayName(QStringLiteral("kMDItemTitle")), QStringLiteral("Title"));
}

TEST(EnglishPlurals, DropOrKeepTheSAndChooseBetweenTheFormsOfACountedText)
{
    const QString text = QStringLiteral("%Ln file(s) (was|were) left as (it is|they are).");
    EXPECT_EQ(englishPluralForm(text, 1), QStringLiteral("%Ln file was left as it is."));
    EXPECT_EQ(englishPluralForm(text, 0), QStringLiteral("%Ln files were left as they are."));
    // Only counted texts are touched, and parentheses without a choice stay.
    const EnglishPlurals plurals;
    EXPECT_EQ(plurals.translate("Undo", "(it is|they are)", nullptr, -1), QString());
    EXPECT_EQ(plurals.translate("Undo", "%Ln copies (of %1)", nullptr, 2), QString());
}

TEST(InstalledCatalogues, UndoSummariesCountZeroAsOneInFrenchOnly)
{
    const char *const text = "%Ln file(s) (was|were) given back.";
    {
        InstalledCatalogue french(QStringLiteral("fr"));
        EXPECT_EQ(QCoreApplication::translate("Undo", text, nullptr, 0),
                  QStringLiteral("0 fichier a été rendu."));
        EXPECT_EQ(QCoreApplication::translate("Undo", text, nullptr, 2),
                  QStringLiteral("2 fichiers ont été rendus."));
    }
    InstalledCatalogue german(QStringLiteral("de"));
    EXPECT_EQ(QCoreApplication::translate("Undo", text, nullptr, 0),
              QStringLiteral("0 Dateien wurden zurückgegeben."));
}
