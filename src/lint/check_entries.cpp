// Every parameter and user data goes through what the commands do with it.
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "combine/checks.h"
#include "genm/default_record.h"
#include "lint/checks.h"
#include "lint/entry_checks.h"
#include "lint/nearest_name.h"
#include "lint/wording.h"
#include "model/handlers.h"
#include "model/meta_model.h"
#include "sdk/parameter_type.h"

namespace metagen::lint {

namespace {

/// The names of the vocabulary. That of doubles is float's.
std::vector<std::string_view> knownTypes() {
    std::vector<std::string_view> names;
    for (std::int32_t code = type_code::integer; code <= type_code::transformTexture; ++code) {
        if (hasTypeName(code) && typeCode(typeName(code)) == code) names.push_back(typeName(code));
    }
    return names;
}

/// "params" or "userData" of a plugin, in all the documents.
struct Section {
    std::string_view plugin;
    std::string_view key;
    json::Object stripped = {};
    json::Object combined = {};
    const json::Value* combinedUserData = nullptr;  ///< of the plugin; null when it has none
    json::Object live = {};                         ///< of the SDK's plugin
    json::Object previous = {};                     ///< of the previous one
    bool isOfSdk = false;                           ///< the SDK has the plugin
};

class EntryCheck {
public:
    EntryCheck(const Subject& linted, json::Object previousBase, Findings& collected)
        : subject(linted), previous(section(previousBase, "plugins")), findings(collected) {}

    void run() {
        const json::Object live = section(subject.base, "plugins");
        const json::Object stripped = section(subject.stripped, "plugins");
        const json::Object combined = section(subject.combined, "plugins");
        for (const auto& [plugin, value] : section(subject.merged, "plugins")) {
            const json::Object merged = membersOf(value);
            for (const std::string_view key : {params, userData}) {
                const json::Object entries = section(merged, key);
                if (entries.empty()) continue;
                const json::Object combinedPlugin = section(combined, plugin);
                checkSection(entries, {.plugin = plugin,
                                       .key = key,
                                       .stripped = section(section(stripped, plugin), key),
                                       .combined = section(combinedPlugin, key),
                                       .combinedUserData = json::find(combinedPlugin, userData),
                                       .live = section(section(live, plugin), key),
                                       .previous = section(section(previous, plugin), key),
                                       .isOfSdk = json::find(live, plugin) != nullptr});
            }
        }
        checkChangedNames(combined);
    }

private:
    /// A name that isn't written as it stands may become several members, or another one's. Of what
    /// the merge doesn't know, the generators find in the combined document what they refuse.
    void checkChangedNames(json::Object combined) {
        const json::Object mergedPlugins = section(subject.merged, "plugins");
        for (const auto& [plugin, value] : combined) {
            const json::Value* merged = json::find(mergedPlugins, plugin);
            if (isChanged(merged, value)) reportChanged({"plugins", plugin});
            const json::Object members = membersOf(value);
            for (const std::string_view key : {params, userData}) {
                const json::Value* entries = json::find(members, key);
                if (entries == nullptr) continue;
                const json::Value* mergedEntries = json::find(membersOf(merged), key);
                if (isChanged(mergedEntries, *entries)) reportChanged({"plugins", plugin, key});
                const Section of = {.plugin = plugin,
                                    .key = key,
                                    .combined = membersOf(entries),
                                    .combinedUserData = json::find(members, userData)};
                checkUnmerged(of, membersOf(mergedEntries));
            }
        }
    }

    /// Whether what the merge knows as an object, or not at all, is none.
    static bool isChanged(const json::Value* merged, const json::Value& combined) {
        return !combined.isObject() && (merged == nullptr || merged->isObject());
    }

    void checkUnmerged(const Section& of, json::Object merged) {
        for (const auto& [name, entry] : of.combined) {
            if (json::find(merged, name) != nullptr) continue;
            bool isRefused = isRefusedByGenm(of, name, entry);
            if (of.key == params) isRefused |= isRefusedByGenh(of, name, entry);
            if (isRefused) reportChanged({"plugins", of.plugin, of.key, name});
        }
    }

    void reportChanged(std::initializer_list<std::string_view> path) {
        findings.add(rule::unreadableName, subject.keyPlace(path),
                     "names that combine writes without escapes make another document of it, which "
                     "genh and genm refuse");
    }

    void checkSection(json::Object entries, const Section& of) {
        for (const auto& [name, merged] : entries) {
            const json::Value* combined = json::find(of.combined, name);
            bool isRefused = isRefusedByCombine(merged);
            if (combined != nullptr) {
                isRefused |= isRefusedByGenm(of, name, *combined);
                if (of.key == params) isRefused |= isRefusedByGenh(of, name, *combined);
            }
            const json::Member* stripped = findMember(of.stripped, name);
            const std::size_t errors = findings.errorCount();
            if (stripped != nullptr) checkEntryShape(subject, *stripped, isRefused, findings);
            if (isRefused && findings.errorCount() == errors) {
                add(rule::wrongKind, of, name, "a value is of a kind that the commands refuse");
            }
        }
    }

    static bool isRefusedByCombine(const json::Value& entry) try {
        static_cast<void>(lacksDefault(json::asObject(entry)));
        return false;
    } catch (const std::runtime_error&) {
        return true;
    }

    bool isRefusedByGenm(const Section& of, std::string_view name, const json::Value& entry) {
        const std::uint32_t flag = of.key == userData ? param_flag::fromUserData : 0;
        Arena arena;
        try {
            checkParameter(of, name, entry,
                           readMetaParameter(name, json::asObject(entry), flag, arena));
        } catch (const std::out_of_range&) {
            reportMissingType(of, name);
        } catch (const std::runtime_error&) {
            return true;
        }
        return false;
    }

    /// Another user data's wrong value shows here, too; it is told where that stands.
    bool isRefusedByGenh(const Section& of, std::string_view name, const json::Value& entry) {
        if (of.combinedUserData == nullptr || !of.combinedUserData->isObject()) return false;
        try {
            readHandlerParameter(name, entry, *of.combinedUserData->object());
        } catch (const std::logic_error&) {
            reportHandlerDefault(of, name, entry);
        } catch (const std::runtime_error&) {
            const json::Value* handler = json::find(membersOf(entry), "handler");
            return handler != nullptr && !handler->text();
        }
        return false;
    }

    void reportHandlerDefault(const Section& of, std::string_view name, const json::Value& entry) {
        const std::string_view word = json::asText(json::at(membersOf(entry), "handler"));
        const std::string data = std::string(name).append(findHandlerKind(word)->value);
        const std::uint32_t place =
            subject.valuePlace({"plugins", of.plugin, userData, data, "defaultValue"});
        const json::Value* text =
            json::find(section(*of.combinedUserData->object(), data), "defaultValue");
        findings.add(rule::handlerDefault, place,
                     ownerName(of.plugin, name) + " has a " + std::string(word) +
                         ", which takes its default from the \"defaultValue\" of " +
                         inQuotes(data) + ": " +
                         (text == nullptr ? "there is none" : described(*text) + " is none") +
                         ", so genh ends");
    }

    void reportMissingType(const Section& of, std::string_view name) {
        // Of what was removed, alone or with its plugin, checkUpgrade tells.
        if (of.key == params && json::find(of.previous, name) != nullptr) return;
        if (of.key == params && of.isOfSdk) {
            add(rule::unknownParameter, of, name,
                "the SDK's " + inQuotes(of.plugin) + " has no parameter " + inQuotes(name) +
                    didYouMean(finder.among(of.live, name)) +
                    "; one of the host's own needs a \"type\", without which genm ends");
        } else {
            add(rule::missingType, of, name,
                ownerName(of.plugin, name) + " has no \"type\"" +
                    (of.key == userData ? ", without which genm ends"
                                        : ", and the SDK no " + inQuotes(of.plugin) +
                                              " to take it from: genm ends"));
        }
    }

    void checkParameter(const Section& of, std::string_view name, const json::Value& entry,
                        const MetaParameter& parameter) {
        if (parameter.code == type_code::unknown) return reportUnknownType(of, name, entry);
        const bool isRead = parameter.defaultText || isListCode(parameter.code);
        if (isRead && !hasDefaultRule(parameter.code)) {
            findings.add(rule::unsupportedType, typePlace(of, name, entry),
                         "genm has no table for the type " + inQuotes(parameter.typeName) +
                             "; say \"float\" for the SDK's doubles");
            return;
        }
        try {
            const DefaultRecord record = readDefault(parameter, values);
            const json::Value* own = ownDefault(of, name);
            if (own != nullptr) checkDefault(parameter, record, own->offset(), findings);
        } catch (const std::out_of_range&) {
            reportDefault(of, name, parameter, "is beyond the range of a number of 32 bits");
        } catch (const std::invalid_argument&) {
            reportDefault(of, name, parameter, "is no number");
        }
    }

    /// The stripped document's own default text; null when it is the SDK's.
    static const json::Value* ownDefault(const Section& of, std::string_view name) {
        return json::find(section(of.stripped, name), "defaultValue");
    }

    void reportDefault(const Section& of, std::string_view name, const MetaParameter& parameter,
                       std::string_view problem) {
        const std::string owner = ownerName(of.plugin, name);
        const std::string type(parameter.typeName);
        const std::string text = (inQuotes(*parameter.defaultText) + ' ').append(problem);
        if (const json::Value* own = ownDefault(of, name)) {
            findings.add(rule::defaultValue, own->offset(),
                         text + ", which the type " + type + " needs, so genm ends");
        } else {
            add(rule::sdkDefault, of, name,
                owner + " needs a \"defaultValue\" of the host's own: the SDK's " + text +
                    ", which the type " + type + " needs, so genm ends");
        }
    }

    void reportUnknownType(const Section& of, std::string_view name, const json::Value& entry) {
        const json::Object members = membersOf(entry);
        const json::Value* listType = json::find(members, "listType");
        const bool isList =
            listType != nullptr && json::asText(json::at(members, "type")) == "list";
        const std::string_view type = json::asText(isList ? *listType : json::at(members, "type"));
        findings.add(
            rule::unknownType, typePlace(of, name, entry),
            inQuotes(type) + " is no type" + didYouMean(type, knownTypes()) + ", so genm ends");
    }

    /// Of what tells the type: a list's is that of its elements.
    [[nodiscard]] std::uint32_t typePlace(const Section& of, std::string_view name,
                                          const json::Value& entry) const {
        const json::Object stripped = section(of.stripped, name);
        const json::Object members = membersOf(entry);
        const json::Value* listType = json::find(stripped, "listType");
        const bool isList = json::find(members, "listType") != nullptr &&
                            json::asText(json::at(members, "type")) == "list";
        if (isList && listType != nullptr) return listType->offset();
        return subject.valuePlace({"plugins", of.plugin, of.key, name, "type"});
    }

    void add(const Rule& rule, const Section& of, std::string_view name, std::string message) {
        findings.add(rule, subject.keyPlace({"plugins", of.plugin, of.key, name}),
                     std::move(message));
    }

    const Subject& subject;
    json::Object previous;
    Findings& findings;
    NearestName finder;
    DefaultValues values;
};

}  // namespace

void checkEntries(const Subject& subject, json::Object previous, Findings& findings) {
    EntryCheck(subject, previous, findings).run();
}

}  // namespace metagen::lint
