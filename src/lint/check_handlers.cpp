#include <algorithm>
#include <stdexcept>
#include <string>

#include "combine/checks.h"
#include "lint/checks.h"
#include "lint/wording.h"
#include "model/handlers.h"

namespace metagen::lint {

namespace {

/// The first user data of the parameter that is named with a suffix of the texture handlers.
std::string firstData(json::Object data, std::string_view parameter) {
    std::string name;
    const auto isThere = [&](std::string_view suffix) {
        return json::find(data, name = std::string(parameter).append(suffix)) != nullptr;
    };
    const bool isFound = isThere(handler_kind::color.value) ||
                         isThere(handler_kind::floatNumber.value) ||
                         std::ranges::any_of(handler_kind::color.expected, isThere);
    return isFound ? name : "";
}

/// One plugin of the merge, and the same of the combined document.
struct Plugin {
    std::string_view name;
    json::Object params;
    json::Object userData;
};

class HandlerCheck {
public:
    HandlerCheck(const Subject& linted, Findings& collected)
        : subject(linted), findings(collected) {}

    void run() {
        for (const auto& [name, value] : section(subject.merged, "plugins")) {
            reportClashes(name, value);
            const json::Object members = membersOf(value);
            const json::Value* data = json::find(members, userData);
            if (data == nullptr || json::find(members, params) == nullptr) continue;
            checkPlugin({name, section(members, params), membersOf(data)});
        }
        for (const auto& [name, value] : section(subject.combined, "plugins")) {
            checkLeftOut(
                {name, section(membersOf(value), params), section(membersOf(value), userData)});
        }
    }

private:
    void reportClashes(std::string_view plugin, const json::Value& value) try {
        for (const std::string_view name : clashingNames(value)) {
            const std::uint32_t place = subject.keyPlace({"plugins", plugin, userData, name});
            findings.add(rule::nameClash, place,
                         ownerName(plugin, name) +
                             " is the name of user data and of a parameter, so combine ends");
        }
    } catch (const std::runtime_error&) {
        return;  // no object where one belongs: a matter of kinds
    }

    void checkPlugin(const Plugin& plugin) try {
        for (const HandlerFailure& failure :
             handlerFailures(plugin.name, plugin.params, plugin.userData)) {
            report(plugin, failure);
        }
    } catch (const std::runtime_error&) {
        return;  // the same
    }

    /// What genh leaves out without a word.
    void checkLeftOut(const Plugin& plugin) {
        for (const auto& [name, value] : plugin.params) {
            const HandlerKind* kind = kindOf(plugin, name);
            if (kind != nullptr && isLeftOut(plugin, name, value)) {
                reportMissing(plugin, name, kind, ", so genh leaves it out");
            }
        }
    }

    static bool isLeftOut(const Plugin& plugin, std::string_view name,
                          const json::Value& value) try {
        return !readHandlerParameter(name, value, plugin.userData);
    } catch (const std::exception&) {
        return false;  // it is read, and its default refused
    }

    void report(const Plugin& plugin, const HandlerFailure& failure) {
        const std::string_view name = failure.parameter;
        const std::string owner = ownerName(plugin.name, name);
        switch (failure.fault) {
            case HandlerFault::noHandler:
                findings.add(rule::missingHandler, placeOfParameter(plugin, name),
                             owner + " has user data for a texture handler, but no \"handler\"");
                return;
            case HandlerFault::missingTextureData:
            case HandlerFault::notOneValue:
            case HandlerFault::noValue: return reportIncomplete(plugin, name, failure.fault);
            case HandlerFault::otherHandler:
                findings.add(rule::handlerMismatch, placeOfHandler(plugin, name),
                             owner + " has the handler " + handlerText(plugin, name) +
                                 ", which doesn't go with its user data " +
                                 inQuotes(firstDataOf(plugin, name)));
                return;
            case HandlerFault::noMultiplierMode:
                findings.add(rule::multiplierMode,
                             subject.keyPlace({"plugins", plugin.name, userData}),
                             printable(plugin.name) +
                                 " has texture handlers, but no user data "
                                 "\"texture_multiplier_mode\"");
                return;
            case HandlerFault::noParameter:
                const std::string data = firstDataOf(plugin, name);
                findings.add(rule::strayUserData,
                             subject.keyPlace({"plugins", plugin.name, userData, data}),
                             inQuotes(data) + " is named like the user data of a handler of " +
                                 inQuotes(name) + ", which " + printable(plugin.name) + " lacks");
                return;
        }
    }

    void reportIncomplete(const Plugin& plugin, std::string_view name, HandlerFault fault) {
        const auto has = [&](std::string_view suffix) {
            return json::find(plugin.userData, std::string(name).append(suffix)) != nullptr;
        };
        const bool hasBoth = has(handler_kind::color.value) && has(handler_kind::floatNumber.value);
        if (fault != HandlerFault::missingTextureData && hasBoth) {
            findings.add(rule::handlerUserData, placeOfHandler(plugin, name),
                         ownerName(plugin.name, name) + " has both user data " +
                             inQuotes(std::string(name).append(handler_kind::color.value)) +
                             " and " +
                             inQuotes(std::string(name).append(handler_kind::floatNumber.value)) +
                             "; a handler takes one of them");
        } else if (!isToldAsLeftOut(plugin, name)) {
            const HandlerKind* kind = kindOf(plugin, name);
            if (kind != &handler_kind::color && kind != &handler_kind::floatNumber) {
                kind = has(handler_kind::floatNumber.value) ? &handler_kind::floatNumber
                                                            : &handler_kind::color;
            }
            reportMissing(plugin, name, kind, ", so combine lists it among the failures");
        }
    }

    [[nodiscard]] bool isToldAsLeftOut(const Plugin& plugin, std::string_view name) const {
        const json::Object members = section(section(subject.combined, "plugins"), plugin.name);
        const Plugin combined = {plugin.name, section(members, params), section(members, userData)};
        const json::Value* value = json::find(combined.params, name);
        return value != nullptr && kindOf(combined, name) != nullptr &&
               isLeftOut(combined, name, *value);
    }

    /// Names the user data that are missing.
    void reportMissing(const Plugin& plugin, std::string_view name, const HandlerKind* kind,
                       std::string_view consequence) {
        std::string missing;
        const auto add = [&](std::string_view suffix) {
            const std::string data = std::string(name).append(suffix);
            if (suffix.empty() || json::find(plugin.userData, data) != nullptr) return;
            missing += (missing.empty() ? "" : ", ") + inQuotes(data);
        };
        add(kind->value);
        for (const std::string_view suffix :
             kind->expected.empty() ? kind->needed : kind->expected) {
            add(suffix);
        }
        findings.add(rule::handlerUserData, placeOfHandler(plugin, name),
                     ownerName(plugin.name, name) + " has a " + handlerText(plugin, name) +
                         (missing.empty() ? " with user data that is not its own"
                                          : " but no user data " + missing) +
                         std::string(consequence));
    }

    static const json::Value* handlerOf(const Plugin& plugin, std::string_view name) {
        return json::find(section(plugin.params, name), "handler");
    }

    static const HandlerKind* kindOf(const Plugin& plugin, std::string_view name) {
        const json::Value* handler = handlerOf(plugin, name);
        const auto word = handler == nullptr ? std::nullopt : handler->text();
        return word ? findHandlerKind(*word) : nullptr;
    }

    /// Of a parameter that has one.
    static std::string handlerText(const Plugin& plugin, std::string_view name) {
        const json::Value& handler = *handlerOf(plugin, name);
        const auto word = handler.text();
        return word ? printable(word->substr(0, 80)) : described(handler);
    }

    [[nodiscard]] std::string firstDataOf(const Plugin& plugin, std::string_view name) const {
        return firstData(plugin.userData, name);
    }

    [[nodiscard]] std::uint32_t placeOfHandler(const Plugin& plugin, std::string_view name) const {
        return subject.valuePlace({"plugins", plugin.name, params, name, "handler"});
    }

    /// A parameter that the stripped document has only user data of is told at the first of these.
    [[nodiscard]] std::uint32_t placeOfParameter(const Plugin& plugin,
                                                 std::string_view name) const {
        const json::Object stripped = section(section(subject.stripped, "plugins"), plugin.name);
        if (findMember(section(stripped, params), name) != nullptr) {
            return subject.keyPlace({"plugins", plugin.name, params, name});
        }
        return subject.keyPlace({"plugins", plugin.name, userData, firstDataOf(plugin, name)});
    }

    const Subject& subject;
    Findings& findings;
};

}  // namespace

void checkHandlers(const Subject& subject, Findings& findings) {
    HandlerCheck(subject, findings).run();
}

}  // namespace metagen::lint
