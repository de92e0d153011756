#pragma once

#include <QByteArray>
#include <QString>

namespace selfsame {

// JSON written as it goes rather than built as a document: results may hold millions of
// items, and a document would hold them all a second time.
class JsonWriter {
public:
    explicit JsonWriter(QByteArray &out) : m_out(out) {}
    void begin(char bracket) { separate(); m_out += bracket; m_first = true; }
    void end(char bracket) { m_out += bracket; m_first = false; }
    void key(const char *name)
    {
        separate();
        string(QByteArrayView(name));
        m_out += ':';
        m_first = true;
    }
    void value(qint64 number)
    {
        separate();
        integer(number);
    }
    void value(quint64 number)
    {
        separate();
        integer(number);
    }
    void value(int number) { value(qint64(number)); }
    void value(bool flag) { separate(); m_out += flag ? "true" : "false"; }
    void value(double number);
    void value(const QString &text) { separate(); string(text.toUtf8()); }
    void value(const QByteArray &utf8) { separate(); string(utf8); }
    void value(QByteArrayView utf8)
    {
        separate();
        string(utf8);
    }
    void value(const char *utf8)
    {
        separate();
        string(QByteArrayView(utf8));
    }
    void null() { separate(); m_out += "null"; }
    template <typename T> void field(const char *name, const T &v) { key(name); value(v); }
    // Where the next value begins a new line, for output that people read with line tools.
    void newline() { m_out += '\n'; }

private:
    void separate()
    {
        if (!m_first) m_out += ',';
        m_first = false;
    }
    void string(QByteArrayView utf8);
    void integer(qint64 number);
    void integer(quint64 number);

    QByteArray &m_out;
    bool m_first = true;
};

} // namespace selfsame
