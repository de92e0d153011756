#pragma once

#include "results/ResultItem.h"

#include <QString>

namespace simdjson::dom { class object; }

namespace selfsame {

class JsonWriter;

// One item in saved results: every key the search and the file operations stored, absent
// values left out. Its group, "dupes" and place in the lists are written by the caller.
void writeItem(JsonWriter &json, const ResultItem &item);
// Fills `item` from a saved item. False, with the reason naming the key in `error`, when a key
// holds a value of the wrong kind or out of its range, or the path is missing; keys it does not
// know are ignored.
bool readItem(const simdjson::dom::object &object, ResultItem &item, QString *error);

} // namespace selfsame
