// Copies a default value into the form in which the interface hands it out: a QyraValue with every
// part below it in a block of its own.
#pragma once

#include <vector>

#include "replay_sdk/block_registry.h"
#include "replay_sdk/default_value.h"
#include "sdk/qyra_sdk.h"

namespace metagen::replay {

class ValueWriter {
public:
    /// The renderer is the one that plugin references name.
    ValueWriter(BlockRegistry& registry, void* liveRenderer)
        : blocks(registry), renderer(liveRenderer) {}

    /// Overwrites all of *out.
    void write(const DefaultValue& value, QyraValue& out);

private:
    void writePayload(std::monostate none, QyraValue& out);
    void writePayload(std::int32_t integer, QyraValue& out);
    void writePayload(float single, QyraValue& out);
    void writePayload(double real, QyraValue& out);
    void writePayload(std::uint8_t boolean, QyraValue& out);
    void writePayload(const std::string& text, QyraValue& out);
    void writePayload(const PluginReference& reference, QyraValue& out);
    void writePayload(const std::vector<std::int32_t>& integers, QyraValue& out);
    void writePayload(const std::vector<float>& floats, QyraValue& out);
    void writePayload(const std::vector<Text>& texts, QyraValue& out);
    void writePayload(const std::vector<PluginReference>& references, QyraValue& out);
    void writePayload(const std::vector<DefaultValue>& values, QyraValue& out);

    QyraPluginReference handOut(const PluginReference& reference) const;

    /// A block for the elements, counted in out.
    template <typename Element>
    Element* allocateElements(std::size_t count, QyraValue& out);

    BlockRegistry& blocks;
    void* renderer;
};

}  // namespace metagen::replay
