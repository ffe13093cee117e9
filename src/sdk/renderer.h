// A renderer of the SDK, and the queries that `dump` and `combine` put to it.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "sdk/sdk_memory.h"

namespace metagen {

/// Owns a renderer handle and what creation hands out with it; one per command.
class Renderer {
public:
    /// Throws Qyra::InstantiationErr "Instantiation error." when the SDK creates none.
    Renderer();

    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    /// Releases the renderer first, then the type ids that it handed out.
    ~Renderer();

    /// The names of all plugin classes, in the SDK's order. May be empty and may repeat.
    [[nodiscard]] std::vector<std::string> pluginClassNames() const;

    /// The type text by which the other queries name the class; empty when the SDK has none.
    [[nodiscard]] std::string typeText(const std::string& className) const;

    /// Bit n stands for category code n.
    [[nodiscard]] std::uint64_t categoryBits(const std::string& typeText) const;

    /// The names of the class's parameters, in the SDK's order. May be empty and may repeat.
    [[nodiscard]] std::vector<std::string> parameterNames(const std::string& typeText) const;

    /// What describes one parameter; belongs to the SDK.
    [[nodiscard]] const void* parameterDefinition(const std::string& typeText,
                                                  const std::string& name) const;

    [[nodiscard]] std::int32_t gpuSupport(const std::string& typeText,
                                          const void* definition) const;

    /// The type ids of all plugin classes, as the SDK gave them at creation.
    [[nodiscard]] std::span<const std::int64_t> pluginClassTypeIds() const {
        return {typeIds.get(), typeIdCount};
    }

private:
    std::int32_t errorCode = 0;
    void* handle;
    std::uint32_t typeIdCount = 0;
    SdkArray<std::int64_t> typeIds;
};

/// A renderer for a command. When the SDK creates none, its text and a line feed on standard output
/// end the process with status 1.
std::unique_ptr<Renderer> createRendererOrExit();

/// The plugin id as the queries by id want it: the low 48 bits, read as a signed number.
std::int64_t pluginIdOf(std::int64_t rawId);

}  // namespace metagen
