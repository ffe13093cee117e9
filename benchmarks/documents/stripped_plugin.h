// One plugin of the stripped document, put together parameter by parameter.
#pragma once

#include <optional>
#include <string>

#include <picojson.h>

#include "benchmarks/invented_sdk/invented_sdk.h"

namespace metagen::invented {

class StrippedPlugin {
public:
    StrippedPlugin(const InventedSdk& described, std::size_t number);

    /// The plugin's object, or null for one that is deprecated.
    picojson::value build();

private:
    void findConditionTarget();
    void addParameter(std::size_t number);
    void addHandler(const std::string& name, const InventedParameter& parameter,
                    picojson::object& entry);
    void addTextureHandler(const std::string& name, bool isColor, picojson::object& entry);
    void addDuplicateHandler(const std::string& name, picojson::object& entry);
    void addFileBrowser(picojson::object& entry);
    void addScaling(picojson::object& entry);
    void addOverride(const InventedParameter& parameter, picojson::object& entry);
    void addHostKeys(const std::string& name, picojson::object& entry);
    void addUserData(const std::string& name, const char* type, const std::string& defaultText);

    const InventedSdk& sdk;
    std::size_t plugin;
    Dice dice;
    std::optional<std::string> conditionTarget;  ///< an integer or bool, which is never deprecated
    picojson::object parameters;
    picojson::object userData;
};

}  // namespace metagen::invented
