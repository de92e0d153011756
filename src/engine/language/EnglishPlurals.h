#pragma once

#include <QTranslator>

namespace selfsame {

// The English forms of counted texts. Texts with a count are written once, as "%Ln file(s)";
// this translator, installed when the application starts, gives "1 file" and "2 files". A
// translation into another language brings its own forms and takes precedence when installed
// after it.
class EnglishPlurals : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }
};

// The form of `text` for `n`: every "(s)" dropped for one, made "s" otherwise, and of every
// choice "(singular|plural)" such as "(was|were)" the first for one, the second otherwise.
QString englishPluralForm(const QString &text, int n);

} // namespace selfsame
