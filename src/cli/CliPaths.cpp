#include "CliPaths.h"

#include "names/FileNames.h"

#include <QDir>
#include <cerrno>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace selfsame::cli
{

namespace
{

// The working folder by its bytes, which need not be UTF-8 either.
QString workingFolder()
{
    std::vector<char> buffer(4096);
    while (!getcwd(buffer.data(), buffer.size())) {
        if (errno != ERANGE) return QDir::currentPath(); // gone or unreadable: as Qt sees it
        buffer.resize(buffer.size() * 2);
    }
    return pathFromBytes(std::string_view(buffer.data()));
}

// The backslash and the control characters that have a C escape, and their letters.
constexpr std::u16string_view kEscaped = u"\\\a\b\t\n\v\f\r", kEscapeLetters = u"\\abtnvfr";

void appendByte(QString &shown, unsigned byte)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    shown += QLatin1String("\\x");
    shown += QLatin1Char(kHex[byte >> 4]);
    shown += QLatin1Char(kHex[byte & 0xF]);
}

} // namespace

QStringList argumentsFromBytes(int argc, const char *const *argv)
{
    QStringList arguments;
    arguments.reserve(argc);
    for (int i = 0; i < argc; ++i)
        arguments.append(pathFromBytes(std::string_view(argv[i])));
    return arguments;
}

QString absolutePath(const QString &path)
{
    if (path.isEmpty()) return path;
    return QDir::cleanPath(path.startsWith(u'/') ? path : workingFolder() + u'/' + path);
}

QString escapedText(QStringView text)
{
    QString shown;
    shown.reserve(text.size() + 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        // A lone U+DC80 to U+DCFF stands for a byte that is not UTF-8; after a high surrogate it
        // is half of a real character.
        if (c >= 0xDC80 && c <= 0xDCFF && !(i > 0 && text[i - 1].isHighSurrogate())) {
            appendByte(shown, c - 0xDC00);
            continue;
        }
        if (const std::size_t k = kEscaped.find(c); k != std::u16string_view::npos) {
            shown += u'\\';
            shown += QChar(kEscapeLetters[k]);
            continue;
        }
        // Other controls, and the separators some programs take for line breaks, as their bytes.
        if (c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029) {
            for (const char byte : QString(QChar(c)).toUtf8())
                appendByte(shown, static_cast<unsigned char>(byte));
            continue;
        }
        shown += text[i];
    }
    return shown;
}

QByteArray nulTerminatedPath(QStringView path)
{
    QByteArray bytes = pathBytes(path);
    bytes += '\0';
    return bytes;
}

} // namespace selfsame::cli
