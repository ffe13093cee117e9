// Opaque handles that are numbers, not addresses: none is ever dereferenced, so any bit pattern
// that a caller passes can be told apart, and a handle that was released stays recognisable since
// its number is not given out again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace metagen::replay {

enum class HandleKind : std::uint8_t { renderer = 1, textVector = 2, definition = 3 };

/// What stands in a handle.
struct HandleParts {
    HandleKind kind;
    std::size_t index;  ///< counts from 0
};

/// The handle for an index below 2^56.
void* makeHandle(HandleKind kind, std::size_t index);

/// Nothing when the address is no handle of this library's making.
std::optional<HandleParts> readHandle(const void* handle);

/// The objects behind the handles of one kind. Created objects are numbered from 0.
template <typename Object>
class HandleTable {
public:
    explicit HandleTable(HandleKind handleKind) : kind(handleKind) {}

    void* create(Object object) {
        objects.push_back(std::make_unique<Object>(std::move(object)));
        ++live;
        return makeHandle(kind, objects.size() - 1);
    }

    /// Null when the handle is not of this table or its object was released.
    Object* find(const void* handle) const {
        const std::optional<HandleParts> parts = readHandle(handle);
        return parts && wasCreated(*parts) ? objects[parts->index].get() : nullptr;
    }

    /// Ends the object. False when there is none to end.
    bool release(const void* handle) {
        if (find(handle) == nullptr) return false;
        objects[readHandle(handle)->index].reset();
        --live;
        return true;
    }

    /// Whether the handle was given out by this table, released since or not.
    bool wasCreated(const HandleParts& parts) const {
        return parts.kind == kind && parts.index < objects.size();
    }

    /// The handle of the live object that was created last, or null.
    void* newestLive() const {
        for (std::size_t index = objects.size(); index > 0; --index)
            if (objects[index - 1]) return makeHandle(kind, index - 1);
        return nullptr;
    }

    std::size_t createdCount() const { return objects.size(); }
    std::size_t liveCount() const { return live; }

private:
    HandleKind kind;
    std::vector<std::unique_ptr<Object>> objects;
    std::size_t live = 0;
};

}  // namespace metagen::replay
