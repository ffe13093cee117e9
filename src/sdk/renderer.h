// A renderer of the SDK and what it knows: the queries that `dump` and `combine` put to it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "sdk/exceptions.h"
#include "sdk/sdk_memory.h"
#include "support/end_run.h"

namespace metagen {

/// What describes one parameter of a class; belongs to the SDK. Nothing can be asked of a null one.
class Definition {
public:
    explicit Definition(const void* sdkHandle) : handle(sdkHandle) {}

    [[nodiscard]] bool isNull() const { return handle == nullptr; }
    [[nodiscard]] const void* get() const { return handle; }

    /// The type code, of a list parameter that of its elements or of the list.
    [[nodiscard]] std::int32_t typeCode() const;
    [[nodiscard]] bool isList() const;

    /// Whether a user-interface guide of the kind that gives a default value stands on it.
    [[nodiscard]] bool hasDefaultGuide() const;

    /// What that guide says: a number, and a sequence of `count` numbers.
    struct Guide {
        float number = 0;
        SdkArray<float> sequence;
        std::size_t count = 0;
    };
    [[nodiscard]] Guide defaultGuide() const;

    /// The SDK's own default value.
    void readDefault(SdkValue& value) const;

private:
    const void* handle;
};

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

    /// What describes one parameter.
    [[nodiscard]] Definition definition(const std::string& typeText, const std::string& name) const;

    [[nodiscard]] std::int32_t gpuSupport(const std::string& typeText, Definition definition) const;

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

/// What the function gives, which asks the SDK. When the SDK raises its exception, the text and a
/// line feed on standard output end the process with status 1.
template <typename Ask>
auto askOrExit(const Ask& ask) try {
    return ask();
} catch (const Qyra::QyraException& exception) {
    endRun(failureStatus, exception.message() + '\n');
}

/// Whether the reference names a plugin that its renderer knows. Its id counts as the low 48 bits,
/// read as a signed number; 0 and -1 name none.
bool pluginExists(const QyraPluginReference& reference);

/// The name of the plugin, or of its property that the reference names. Null when there is none;
/// belongs to the SDK.
const char* pluginName(const QyraPluginReference& reference);
const char* propertyName(const QyraPluginReference& reference);

}  // namespace metagen
