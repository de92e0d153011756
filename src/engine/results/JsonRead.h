#pragma once

#include <QString>

#include <simdjson.h>

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

inline std::optional<qint64> integer(Element e)
{
    int64_t value;
    if (!e.get_int64().get(value)) return qint64(value);
    uint64_t large;
    if (!e.get_uint64().get(large)) return qint64(large);
    return std::nullopt;
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

} // namespace selfsame::json
