#include "results/JsonWriter.h"

#include <QLocale>
#include <charconv>

namespace selfsame {

void JsonWriter::value(double number)
{
    separate();
    m_out += QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

namespace
{

template <typename Integer> void appendInteger(QByteArray &out, Integer number)
{
    char text[24];
    const char *end = std::to_chars(text, text + sizeof(text), number).ptr;
    out.append(text, end - text);
}

} // namespace

void JsonWriter::integer(qint64 number)
{
    appendInteger(m_out, number);
}

void JsonWriter::integer(quint64 number)
{
    appendInteger(m_out, number);
}

void JsonWriter::string(QByteArrayView utf8)
{
    m_out += '"';
    qsizetype plain = 0; // start of the run of characters that need no escape
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if (c != '"' && c != '\\' && c >= 0x20) continue;
        m_out.append(utf8.constData() + plain, i - plain);
        if (c < 0x20)
            m_out += "\\u00" + QByteArray::number(c, 16).rightJustified(2, '0');
        else
            m_out += QByteArray("\\") + char(c);
        plain = i + 1;
    }
    m_out.append(utf8.constData() + plain, utf8.size() - plain);
    m_out += '"';
}

} // namespace selfsame
