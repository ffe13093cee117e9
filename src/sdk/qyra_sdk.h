// The C interface of the Qyra SDK's library, as far as metagen uses it: the value type that
// default values travel in, and the list of entry points. The loader resolves this list at run
// time, and the replay SDK implements it; nothing links against the SDK.
#pragma once

#include <cstdint>

/// The kinds of values that stand for no value. The others are type codes (parameter_type.h): of a
/// single value, the generic list, or a list of one type.
namespace qyra_kind {
inline constexpr std::int32_t bad = -1;
inline constexpr std::int32_t unspecified = 10000;
}  // namespace qyra_kind

/// A reference to a plugin instance, as default values carry it.
struct QyraPluginReference {
    void* renderer;         ///< handle of the renderer that knows the plugin; null: no reference
    std::int64_t pluginId;  ///< only the low 48 bits count, read as a signed number
    std::int32_t propertyIndex;  ///< the output referred to; below 1: the plugin as a whole
};

/// A tagged default value. Everything that hangs below it (a text, an element array, the texts in
/// that array, the parts of nested values) was allocated by the SDK, each as a block of its own,
/// and is given back with `C_memory_free`.
struct QyraValue {
    std::int32_t kind;    ///< a type code from 0 to 10, 12 or a list's, or one of qyra_kind
    std::uint32_t count;  ///< elements of a list kind, otherwise 0
    union {
        std::int32_t integer;  ///< kind 0
        float single;          ///< kind 1
        double real;           ///< kind 2
        std::uint8_t boolean;  ///< kind 3; any value but 0 is true
        float components[12];  ///< kinds 4 and 5: 3 floats, 6: 4, 7: 9 by rows, 8: matrix, offset
        char* text;            ///< kind 9, NUL-terminated
        QyraPluginReference reference;  ///< kind 10
        void* elements;  ///< int32_t (100), float (101), 3 floats each (104, 105), 12 floats each
                         ///< (108), char* (109), QyraPluginReference (110), QyraValue (12)
    };
};

/// Every entry point that metagen resolves, in the order of resolution: ENTRY(result, name,
/// (parameters)). Handles are opaque. A "text vector" is an opaque list of NUL-terminated texts;
/// a "definition" describes one parameter of one plugin class and belongs to the SDK. Texts
/// belong to the SDK or to the vector that they were read from, and are never released singly.
/// Names stand here only: the table, its filling and the report of a missing name expand it.
// clang-format off
#define QYRA_SDK_ENTRY_POINTS(ENTRY)                                                              \
    /* Start-up: counts this user of the library; switches the SDK's own window on or off. */     \
    ENTRY(void, Qyra_incrementModuleReferenceCounter, (void))                                     \
    ENTRY(void, Qyra_enableFrameBuffer, (bool enable))                                            \
    /* A renderer, or null and a code in errorCode. options may be null. */                       \
    ENTRY(void*, Qyra_QyraRenderer_create, (const void* options, std::int32_t* errorCode))        \
    ENTRY(void, Qyra_QyraRenderer_setUserData,                                                    \
          (void* renderer, std::int32_t slot, void* userData))                                    \
    /* The count; *typeIds is an array to be freed with C_memory_free. */                         \
    ENTRY(std::uint32_t, Qyra_QyraRenderer_getPluginClassTypeIDs,                                 \
          (void* renderer, std::int64_t** typeIds))                                               \
    ENTRY(void, Qyra_QyraRenderer_release, (void* renderer))                                      \
    /* Frees a block that the SDK handed out; null is allowed. */                                 \
    ENTRY(void, C_memory_free, (void* memory))                                                    \
    ENTRY(void, releaseCharString, (char* text))                                                  \
    /* A text vector of all class names, or null. */                                              \
    ENTRY(void*, Qyra_QyraRenderer_getPluginClassNames, (void* renderer))                         \
    ENTRY(std::uint32_t, getVectorSize, (const void* vector))                                     \
    ENTRY(const char*, getVectorElement, (const void* vector, std::uint32_t index))               \
    ENTRY(void, releaseVector, (void* vector))                                                    \
    ENTRY(std::int64_t, Qyra_QyraRenderer_getPluginTypeId,                                        \
          (void* renderer, const char* className))                                                \
    /* The text by which the queries of a class name it. */                                       \
    ENTRY(const char*, Qyra_QyraRenderer_getPluginTypeFromTypeID,                                 \
          (void* renderer, std::int64_t typeId))                                                  \
    /* Bit n stands for category code n. */                                                       \
    ENTRY(std::uint64_t, Qyra_QyraRenderer_getPluginClassCategories,                              \
          (void* renderer, const char* typeText))                                                 \
    /* A text vector of the class's parameter names, or null. */                                  \
    ENTRY(void*, Qyra_QyraRenderer_getClassPropertyNames, (void* renderer, const char* typeText)) \
    ENTRY(const void*, Qyra_QyraRenderer_getPropertyDefinitionFromClass,                          \
          (void* renderer, const char* typeText, const char* propertyName))                       \
    ENTRY(std::int32_t, Qyra_PluginUtils_getPropertyGpuSupport,                                   \
          (void* renderer, const char* typeText, const void* definition))                         \
    ENTRY(std::int32_t, Qyra_PluginUtils_getPropertyType, (const void* definition))               \
    /* All bits set: the parameter is no list. */                                                 \
    ENTRY(std::uint32_t, Qyra_PluginUtils_getPropertyElementsCount, (const void* definition))     \
    /* Fills *value; what hangs below it is the caller's to free. */                              \
    ENTRY(void, Qyra_PluginUtils_getPropertyDefaultValue,                                         \
          (const void* definition, QyraValue* value))                                             \
    /* *result is not 0 when the definition carries a user-interface guide of that kind. */       \
    ENTRY(void, Qyra_UIGuides_hasType,                                                            \
          (const void* definition, std::int32_t guideKind, std::int32_t* result))                 \
    ENTRY(void, Qyra_UIGuides_getFloat,                                                           \
          (const void* definition, std::int32_t guideKind, float* value))                         \
    /* The count; *values is an array to be freed with C_memory_free. */                          \
    ENTRY(std::uint32_t, Qyra_UIGuides_getFloats,                                                 \
          (const void* definition, std::int32_t guideKind, float** values))                       \
    /* Plugin ids are passed as the low 48 bits, sign-extended; null: no such name. */            \
    ENTRY(std::int32_t, Qyra_QyraRenderer_pluginExistsByID,                                       \
          (void* renderer, std::int64_t pluginId))                                                \
    ENTRY(const char*, Qyra_QyraRenderer_getPluginName, (void* renderer, std::int64_t pluginId))  \
    ENTRY(const char*, Qyra_QyraRenderer_getPropertyNameFromIndexByID,                            \
          (void* renderer, std::int64_t pluginId, std::int32_t propertyIndex))                    \
    ENTRY(std::int64_t, Qyra_QyraRenderer_getPluginTypeIdByID,                                    \
          (void* renderer, std::int64_t pluginId))
// clang-format on
