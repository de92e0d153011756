#pragma once

#include <QCoreApplication>
#include <QString>

#include <simdjson.h>

#include <cmath>
#include <optional>
#include <string_view>

// Reading saved results: a large file is parsed in a few tens of milliseconds, and keys and
// texts are looked at in place.
namespace selfsame::json {

using Element = simdjson::dom::element;

inline QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

inline std::optional<QString> string(Element e)
{
    std::string_view s;
    if (e.get_string().get(s)) return std::nullopt;
    return text(s);
}

// A whole number that fits a qint64; larger ones are not taken for negative ones.
inline std::optional<qint64> integer(Element e)
{
    int64_t value;
    if (e.get_int64().get(value)) return std::nullopt;
    return qint64(value);
}

inline std::optional<double> number(Element e)
{
    double value;
    if (e.get_double().get(value)) return std::nullopt;
    return value;
}

inline std::optional<bool> flag(Element e)
{
    bool value;
    if (e.get_bool().get(value)) return std::nullopt;
    return value;
}

// The member `key` of an object element; nothing when absent or when `e` is no object.
inline std::optional<Element> member(Element e, std::string_view key)
{
    Element value;
    if (e.at_key(key).get(value)) return std::nullopt;
    return value;
}

// Why a value was refused: a message that takes the key's name. Null when the value was read.
using Why = const char *;
inline constexpr Why kNotValid = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not valid");
inline constexpr Why kNegative = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is negative");
inline constexpr Why kOutOfRange = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is out of range");
inline constexpr Why kNotAbsolute =
    QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not an absolute path");
inline constexpr Why kHasNul = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” contains a NUL character");

inline QString refusal(Why why, std::string_view key)
{
    return QCoreApplication::translate("ResultsFile", why).arg(text(key));
}

// A whole number from `min` to `max`. A number of another kind is not valid; one below 0 is
// negative where nothing below 0 is allowed, otherwise out of range like one too large.
inline Why wholeNumber(Element e, qint64 min, qint64 max, qint64 &into)
{
    int64_t value;
    if (e.get_int64().get(value)) {
        uint64_t large;
        return e.get_uint64().get(large) ? kNotValid : kOutOfRange;
    }
    if (value < min) return min == 0 && value < 0 ? kNegative : kOutOfRange;
    if (value > max) return kOutOfRange;
    into = value;
    return nullptr;
}

// Device and inode numbers: anything from 0 to 2^64 − 1.
inline Why unsignedNumber(Element e, quint64 &into)
{
    uint64_t value;
    if (!e.get_uint64().get(value)) {
        into = value;
        return nullptr;
    }
    int64_t negative;
    return e.get_int64().get(negative) ? kNotValid : kOutOfRange;
}

// A finite number from `min` to `max`, whole or not.
inline Why realNumber(Element e, double min, double max, double &into)
{
    double value;
    if (e.get_double().get(value)) return kNotValid;
    if (std::isfinite(value) && value < min && min == 0) return kNegative;
    if (!std::isfinite(value) || value < min || value > max) return kOutOfRange;
    into = value;
    return nullptr;
}

// A path as the file system takes it: absolute, and without the NUL byte that would cut it
// short when it is handed to the system.
inline Why pathFault(std::string_view utf8)
{
    if (utf8.empty() || utf8.front() != '/') return kNotAbsolute;
    if (utf8.find('\0') != std::string_view::npos) return kHasNul;
    return nullptr;
}

inline Why path(Element e, QString &into)
{
    std::string_view utf8;
    if (e.get_string().get(utf8)) return kNotValid;
    if (const Why why = pathFault(utf8)) return why;
    into = text(utf8);
    return nullptr;
}

} // namespace selfsame::json
