// selfsame-cli speaks the session's language: German or French when LANGUAGE or LANG asks for
// it, English for any other language.

#include "CliProcess.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

// The environment of a session whose only language settings are the given ones.
QProcessEnvironment session(const QString &language, const QString &lang)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        environment.remove(QLatin1String(name));
    if (!language.isEmpty()) environment.insert(QStringLiteral("LANGUAGE"), language);
    if (!lang.isEmpty()) environment.insert(QStringLiteral("LANG"), lang);
    return environment;
}

QString errorOfUnknownOption(const QProcessEnvironment &environment)
{
    const CliRun run = runCli({QStringLiteral("--no-such-option")}, environment);
    EXPECT_EQ(run.exitCode, 2);
    return QString::fromUtf8(run.err);
}

} // namespace

TEST(LanguageCli, GermanOrFrenchSessionsGetTheirLanguageOthersEnglish)
{
    const QString german = errorOfUnknownOption(session({}, QStringLiteral("de_DE.UTF-8")));
    EXPECT_TRUE(german.contains(QStringLiteral("unbekannte Option --no-such-option")))
        << german.toStdString();
    EXPECT_TRUE(german.contains(QStringLiteral("Aufruf: selfsame-cli"))) << german.toStdString();

    // LANGUAGE comes before LANG, as in gettext.
    const QString french = errorOfUnknownOption(session(QStringLiteral("fr"), QStringLiteral("de_DE.UTF-8")));
    EXPECT_TRUE(french.contains(QStringLiteral("option inconnue --no-such-option"))) << french.toStdString();

    for (const QString &lang : {QStringLiteral("ja_JP.UTF-8"), QStringLiteral("C.UTF-8")}) {
        const QString english = errorOfUnknownOption(session({}, lang));
        EXPECT_TRUE(english.contains(QStringLiteral("unknown option --no-such-option")))
            << english.toStdString();
        EXPECT_TRUE(english.contains(QStringLiteral("Usage: selfsame-cli"))) << english.toStdString();
    }
}

TEST(LanguageCli, SummaryAndMessagesAreTranslatedAndCountsStayPlainDigits)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    for (const char *name : {"a.txt", "b.txt"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(3000, 'x'));
    }
    const CliRun run = runCli({QStringLiteral("--summary"), QStringLiteral("--no-cache"), folder.path(),
                               folder.filePath(QStringLiteral("missing"))},
                              session(QStringLiteral("de"), {}));
    const QString err = QString::fromUtf8(run.err);
    EXPECT_EQ(run.exitCode, 0) << err.toStdString();
    EXPECT_TRUE(err.contains(QStringLiteral("Datei oder Ordner nicht gefunden: ") +
                             folder.filePath(QStringLiteral("missing"))))
        << err.toStdString();
    EXPECT_TRUE(err.contains(QStringLiteral("Gruppen: 1\n"))) << err.toStdString();
    EXPECT_TRUE(err.contains(QStringLiteral("freigebbare Bytes: 3000\n"))) << err.toStdString();
}

TEST(LanguageCli, AttributeNamesAndDescriptionsAreTranslatedAndKeysAreNot)
{
    const CliRun german = runCli({QStringLiteral("--list-attributes"), QStringLiteral("jpg")},
                                 session(QStringLiteral("de"), {}));
    EXPECT_EQ(german.exitCode, 0);
    EXPECT_TRUE(german.out.contains("kMDItemExposureTimeSeconds\tBelichtungszeit\t"))
        << german.out.toStdString();
    const CliRun french = runCli({QStringLiteral("--list-attributes")}, session(QStringLiteral("fr"), {}));
    EXPECT_TRUE(french.out.contains(
        QStringLiteral("\tAltitude du lieu où l’élément a été créé, en mètres au-dessus du "
                       "niveau de la mer\n")
            .toUtf8()))
        << french.out.toStdString();
}
