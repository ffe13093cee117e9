// An SDK made of test data, put in the place of the process's entry points for the time of a test.
// It counts what it hands out and checks that everything comes back through the right entry point.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "sdk/qyra_sdk.h"

namespace metagen::testing {

class FakeSdk;

struct FakeGuide {
    float single = 0;
    std::vector<float> sequence;
};

struct FakeParameter {
    std::string name;
    std::int32_t code = 0;
    std::uint32_t elements = 0xFFFFFFFFU;  ///< all bits set: no list
    /// Fills the default value; absent: kind 10000.
    std::function<void(FakeSdk&, QyraValue&)> defaultValue = {};
    std::optional<FakeGuide> guide = {};
};

struct FakeClass {
    std::string name;
    std::uint64_t categoryBits = 0;
    std::vector<FakeParameter> parameters = {};
    bool hasNullNames = false;  ///< the vector of parameter names is null
    std::string typeText = name;
};

struct FakePlugin {
    std::optional<std::string> name;
    bool exists = true;
    std::map<std::int32_t, std::string> properties = {};
};

class FakeSdk {
public:
    FakeSdk();
    FakeSdk(const FakeSdk&) = delete;
    FakeSdk& operator=(const FakeSdk&) = delete;
    /// Fails the test when something was not given back.
    ~FakeSdk();

    /// A block of the SDK's memory, counted until C_memory_free.
    void* allocate(std::size_t size);
    char* allocateText(const std::string& text);

    /// A counted array of the SDK's memory with these elements.
    template <typename Element>
    Element* allocateArray(const std::vector<Element>& elements) {
        auto* array = static_cast<Element*>(allocate(elements.size() * sizeof(Element)));
        for (std::size_t i = 0; i < elements.size(); ++i) array[i] = elements[i];
        return array;
    }

    /// A counted text vector; null pointers stand for null texts.
    void* makeTextVector(std::vector<const char*> texts);

    /// The handle of the one renderer.
    void* renderer() { return this; }

    std::vector<FakeClass> classes;
    std::map<std::int64_t, FakePlugin> plugins;  ///< by plugin id, as the queries pass it
    bool refusesRenderers = false;
    bool hasNullClassNames = false;
    const void* userData = nullptr;  ///< that the renderer was given
    std::vector<std::string> calls;  ///< create, release, free, ... in their order

private:
    friend struct FakeEntryPoints;

    std::set<void*> blocks;
    std::set<void*> vectors;
    int renderers = 0;
};

}  // namespace metagen::testing
