// The rules by which a stripped document is checked. Each name has a section in docs/lint.md.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace metagen::lint {

enum class Severity : std::uint8_t { note, warning, error };

/// The severity as outputs name it.
std::string_view name(Severity severity);

/// An error is what makes a command fail, what it lists as a failure or leaves out, or an output
/// that its reader can't use. A warning is what is most likely not meant.
struct Rule {
    std::string_view name;
    Severity severity;
    std::string_view sentence;
};

namespace rule {

inline constexpr Rule syntax = {"syntax", Severity::error, "The document is not JSON."};
inline constexpr Rule wrongKind = {"wrong-kind", Severity::error,
                                   "A value is of a kind that a command refuses."};
inline constexpr Rule objectOverValue = {"object-over-value", Severity::error,
                                         "An object stands where the SDK has a single value."};
inline constexpr Rule missingVersion = {"missing-version", Severity::error,
                                        "The document has no version."};
inline constexpr Rule missingPlugins = {"missing-plugins", Severity::error,
                                        "The combined document has no plugins."};
inline constexpr Rule unreadableName = {"unreadable-name", Severity::error,
                                        "A name makes the combined document unreadable."};
inline constexpr Rule nameClash = {"name-clash", Severity::error,
                                   "User data has the name of a parameter."};
inline constexpr Rule unknownParameter = {
    "unknown-parameter", Severity::error,
    "The SDK lacks the parameter, and the document gives it no type."};
inline constexpr Rule missingType = {"missing-type", Severity::error,
                                     "A parameter or user data of the host's own has no type."};
inline constexpr Rule unknownType = {"unknown-type", Severity::error,
                                     "A type is not one of the known ones."};
inline constexpr Rule unsupportedType = {"unsupported-type", Severity::error,
                                         "genm has no table for the type."};
inline constexpr Rule defaultValue = {"default-value", Severity::error,
                                      "A default value is not the number that its type asks for."};
inline constexpr Rule sdkDefault = {"sdk-default", Severity::error,
                                    "genm can't read the SDK's own default of a parameter."};
inline constexpr Rule handlerDefault = {"handler-default", Severity::error,
                                        "A handler's user data has no number or colour."};
inline constexpr Rule handlerUserData = {"handler-user-data", Severity::error,
                                         "A handler's user data is incomplete."};
inline constexpr Rule handlerMismatch = {"handler-mismatch", Severity::error,
                                         "A parameter's handler and its user data don't match."};
inline constexpr Rule missingHandler = {"missing-handler", Severity::error,
                                        "A parameter has a handler's user data, but no handler."};
inline constexpr Rule multiplierMode = {
    "multiplier-mode", Severity::error,
    "A plugin with texture handlers lacks the user data texture_multiplier_mode."};
inline constexpr Rule strayUserData = {
    "stray-user-data", Severity::error,
    "User data is named like a handler's, but there is no such parameter."};
inline constexpr Rule scalingUnit = {"scaling-unit", Severity::error,
                                     "The unit of a scaling is neither 0 nor 1."};
inline constexpr Rule scalingCondition = {"scaling-condition", Severity::error,
                                          "A condition of a scaling can't be written."};
inline constexpr Rule removedPlugin = {"removed-plugin", Severity::error,
                                       "The new SDK lacks a plugin that the previous one had."};
inline constexpr Rule removedParameter = {
    "removed-parameter", Severity::error,
    "The new SDK lacks a parameter that the previous one had."};

inline constexpr Rule trailingText = {"trailing-text", Severity::warning,
                                      "Text behind the document is ignored."};
inline constexpr Rule duplicateKey = {"duplicate-key", Severity::warning,
                                      "An object has a key twice; only the last one counts."};
inline constexpr Rule foldedKey = {"folded-key", Severity::warning,
                                   "Two keys are one in the combined document; one is dropped."};
inline constexpr Rule changedName = {"changed-name", Severity::warning,
                                     "A name means another one in the combined document."};
inline constexpr Rule unknownKey = {"unknown-key", Severity::warning,
                                    "A key is not one of the known ones."};
inline constexpr Rule ignoredKind = {"ignored-kind", Severity::warning,
                                     "A value is of a kind that is passed over in silence."};
inline constexpr Rule unknownPlugin = {
    "unknown-plugin", Severity::warning,
    "The SDK lacks the plugin, and the document gives it no type."};
inline constexpr Rule unknownHandler = {"unknown-handler", Severity::warning,
                                        "A handler is not one of the known ones."};
inline constexpr Rule partialNumber = {"partial-number", Severity::warning,
                                       "Only a part of a number is read."};
inline constexpr Rule refusedDefault = {"refused-default", Severity::warning,
                                        "A default value doesn't read as one of its type."};
inline constexpr Rule brokenLiteral = {"broken-literal", Severity::warning,
                                       "A number becomes a literal that no compiler takes."};
inline constexpr Rule duplicateOfSdk = {"duplicate-of-sdk", Severity::warning,
                                        "A value is the SDK's own; --fix takes it out."};
inline constexpr Rule nullOfUnknown = {
    "null-of-unknown", Severity::warning,
    "null takes out what the SDK doesn't have; --fix takes it out."};
inline constexpr Rule typeChanged = {
    "type-changed", Severity::warning,
    "The SDK's type changed below what the document says of the parameter."};
inline constexpr Rule categoryChanged = {"category-changed", Severity::warning,
                                         "The SDK's category changed below one of the document."};

inline constexpr Rule defaultChanged = {
    "default-changed", Severity::note,
    "The SDK's default value changed below one of the document."};

/// In the order in which users are shown them.
inline constexpr std::array all = {
    &syntax,           &wrongKind,      &objectOverValue,  &missingVersion, &missingPlugins,
    &unreadableName,   &nameClash,      &unknownParameter, &missingType,    &unknownType,
    &unsupportedType,  &defaultValue,   &sdkDefault,       &handlerDefault, &handlerUserData,
    &handlerMismatch,  &missingHandler, &multiplierMode,   &strayUserData,  &scalingUnit,
    &scalingCondition, &removedPlugin,  &removedParameter, &trailingText,   &duplicateKey,
    &foldedKey,        &changedName,    &unknownKey,       &ignoredKind,    &unknownPlugin,
    &unknownHandler,   &partialNumber,  &refusedDefault,   &brokenLiteral,  &duplicateOfSdk,
    &nullOfUnknown,    &typeChanged,    &categoryChanged,  &defaultChanged};

}  // namespace rule

/// The rule of that name, or null.
const Rule* findRule(std::string_view name);

}  // namespace metagen::lint
