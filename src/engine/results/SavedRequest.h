#pragma once

#include "search/SearchRequest.h"

#include <QString>

#include <optional>

namespace simdjson::dom { class element; }

namespace selfsame {

class JsonWriter;

// A search request in saved results: every parameter under its own name, regular
// expressions by their pattern and case sensitivity.
void writeRequest(JsonWriter &json, const SearchRequest &request);
// Nothing, with the reason naming the parameter in `error`, when one is missing, of the wrong
// kind or out of its range.
std::optional<SearchRequest> readRequest(simdjson::dom::element object, QString *error);

} // namespace selfsame
