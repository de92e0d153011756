#include "results/NameCompare.h"

namespace selfsame
{

namespace
{

int sign(int value)
{
    return value < 0 ? -1 : (value > 0 ? 1 : 0);
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// A character as natural order sees it: without case, and an accented letter as its base
// letter, so that "Ärger" sorts among the a's.
char16_t folded(QChar c)
{
    if (c.unicode() < 0x80) return c.toCaseFolded().unicode();
    if (c.decompositionTag() == QChar::Canonical) c = c.decomposition().at(0);
    return c.toCaseFolded().unicode();
}

} // namespace

QStringView pathExtension(QStringView name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.mid(dot + 1) : QStringView();
}

QStringView deletingPathExtension(QStringView name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.left(dot) : name;
}

int compareLowercase(QStringView a, QStringView b)
{
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t x = a[i].toLower().unicode(), y = b[i].toLower().unicode();
        if (x != y) return x < y ? -1 : 1;
    }
    return sign(int(a.size() > b.size()) - int(a.size() < b.size()));
}

int naturalCompare(QStringView a, QStringView b)
{
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            // Compare the numbers' values: leading zeros aside, the longer run is larger.
            while (i < a.size() && a[i] == QLatin1Char('0') && i + 1 < a.size() && isDigit(a[i + 1]))
                ++i;
            while (j < b.size() && b[j] == QLatin1Char('0') && j + 1 < b.size() && isDigit(b[j + 1]))
                ++j;
            qsizetype ei = i, ej = j;
            while (ei < a.size() && isDigit(a[ei]))
                ++ei;
            while (ej < b.size() && isDigit(b[ej]))
                ++ej;
            if (ei - i != ej - j) return ei - i < ej - j ? -1 : 1;
            if (const int c = a.mid(i, ei - i).compare(b.mid(j, ej - j))) return sign(c);
            i = ei;
            j = ej;
            continue;
        }
        const char16_t x = folded(a[i]), y = folded(b[j]);
        if (x != y) return x < y ? -1 : 1;
        ++i;
        ++j;
    }
    if (i < a.size() || j < b.size()) return i < a.size() ? 1 : -1;
    return sign(a.compare(b));
}

void appendNaturalSortKey(QStringView text, std::u16string &key)
{
    for (qsizetype i = 0; i < text.size();) {
        if (!isDigit(text[i])) {
            key.push_back(folded(text[i++]));
            continue;
        }
        while (text[i] == QLatin1Char('0') && i + 1 < text.size() && isDigit(text[i + 1]))
            ++i;
        qsizetype end = i;
        while (end < text.size() && isDigit(text[end]))
            ++end;
        // The marker sorts where digits do against other characters; the length decides
        // between numbers of different sizes before their digits do.
        key.push_back(u'0');
        key.push_back(char16_t(0x30 + std::min<qsizetype>(end - i, 0xd000)));
        key.append(text.utf16() + i, std::size_t(end - i));
        i = end;
    }
}

} // namespace selfsame
