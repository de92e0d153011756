#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;
class QTranslator;

namespace selfsame
{

// The language of the catalogues for a user's languages, most preferred first ("fr-CA", "de",
// "en-GB"...): "de" or "fr", or an empty string for English, the language of the texts in the
// source. A language without a catalogue gives way to the next one, as gettext does; English
// (or the C locale) ends the search.
QString catalogueLanguage(const QStringList &preferredLanguages);

// Loads Selfsame's own catalogue of `language` ("de", "fr"), built into the programs.
bool loadCatalogue(QTranslator *translator, const QString &language);

// Installs, for the application's lifetime, the English plural forms and, when the session asks
// for a language with a catalogue (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), that catalogue and
// Qt's own one for standard buttons when the system has it. Returns the catalogue language.
QString installTranslations(QCoreApplication *app);

} // namespace selfsame
