// The floor under each command: what can't be avoided by anybody who uses the JSON library plainly.
// A document is read into one buffer and parsed from its characters; trees are never destroyed.
//
//   floor parse <document>...                    under diff, genh and genm
//   floor merge <base> <stripped> <combined>     under combine: the result is serialised and
//   written floor copy <document> <copy>                 under dump: the same bytes are written
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <picojson.h>

namespace {

/// Never destroyed: the process ends before.
using Trees = std::deque<picojson::value>;

struct Buffer {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
};

[[noreturn]] void fail(const char* path) {
    std::perror(path);
    std::exit(1);
}

Buffer read(const char* path) {
    std::FILE* file = std::fopen(path, "rb");
    if (file == nullptr || std::fseek(file, 0, SEEK_END) != 0) fail(path);
    Buffer buffer;
    buffer.size = static_cast<std::size_t>(std::ftell(file));
    std::rewind(file);
    static_cast<void>(std::setvbuf(file, nullptr, _IONBF, 0));
    buffer.bytes.reset(new char[buffer.size]);
    if (std::fread(buffer.bytes.get(), 1, buffer.size, file) != buffer.size) fail(path);
    static_cast<void>(std::fclose(file));
    return buffer;
}

void write(const char* path, const char* bytes, std::size_t size) {
    std::FILE* file = std::fopen(path, "wb");
    if (file == nullptr) fail(path);
    static_cast<void>(std::setvbuf(file, nullptr, _IONBF, 0));
    if (std::fwrite(bytes, 1, size, file) != size || std::fclose(file) != 0) fail(path);
}

picojson::value& parse(Trees& trees, const char* path) {
    const Buffer buffer = read(path);
    picojson::value& tree = trees.emplace_back();
    const char* begin = buffer.bytes.get();
    std::string error;
    picojson::parse(tree, begin, begin + buffer.size, &error);
    if (!error.empty()) {
        static_cast<void>(std::fprintf(stderr, "%s: %s\n", path, error.c_str()));
        std::exit(1);
    }
    return tree;
}

/// Lays one object over another, by moving; null takes a plugin or a parameter away.
void lay(picojson::object& over, picojson::object& base, int depth) {
    for (auto& [key, value] : over) {
        const auto member = base.find(key);
        if (value.is<picojson::null>() && (depth == 1 || depth == 3)) {
            if (member != base.end()) base.erase(member);
        } else if (member == base.end()) {
            base.emplace(key, picojson::value()).first->second.swap(value);
        } else if (value.is<picojson::object>()) {
            lay(value.get<picojson::object>(), member->second.get<picojson::object>(), depth + 1);
        } else {
            member->second.swap(value);
        }
    }
}

void merge(Trees& trees, const char* basePath, const char* strippedPath, const char* combinedPath) {
    picojson::value& stripped = parse(trees, strippedPath);
    picojson::value& base = parse(trees, basePath);
    lay(stripped.get<picojson::object>(), base.get<picojson::object>(), 0);
    std::string text;
    base.serialize(std::back_inserter(text));
    write(combinedPath, text.data(), text.size());
}

void copy(const char* path, const char* copyPath) {
    const Buffer buffer = read(path);
    write(copyPath, buffer.bytes.get(), buffer.size);
}

}  // namespace

int main(int argumentCount, char** arguments) try {
    Trees trees;
    const std::string_view work = argumentCount < 3 ? "" : arguments[1];
    if (work == "parse") {
        for (int index = 2; index < argumentCount; ++index) parse(trees, arguments[index]);
    } else if (work == "merge" && argumentCount == 5) {
        merge(trees, arguments[2], arguments[3], arguments[4]);
    } else if (work == "copy" && argumentCount == 4) {
        copy(arguments[2], arguments[3]);
    } else {
        static_cast<void>(std::fputs("floor parse|merge|copy <document>...\n", stderr));
        std::_Exit(2);
    }
    std::_Exit(0);
} catch (const std::exception& exception) {
    static_cast<void>(std::fprintf(stderr, "%s\n", exception.what()));
    return 1;
}
