#include "support/json_file.h"

#include <optional>
#include <utility>

#include "support/process_end.h"

namespace metagen::json {

Value& parseFileOrExit(File file, const std::string& unreadable, const std::string& malformed) {
    const std::optional<FileText> text = readAll(file.get());
    requireOrExit(text.has_value(), "%s", unreadable.c_str());
    file.reset();
    std::optional<Value> document = parse(text->view());
    requireOrExit(document.has_value(), "%s", malformed.c_str());
    return keepToProcessEnd(std::move(*document));
}

const Object& objectOrExit(const Value& value, const char* message) {
    requireOrExit(value.is<Object>(), "%s", message);
    return asObject(value);
}

}  // namespace metagen::json
