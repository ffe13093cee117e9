// The model of a "plugins" object, together with the document that it borrows from.
#pragma once

#include <algorithm>
#include <string>

#include "model/model_reader.h"
#include "support/json.h"

namespace metagen {

class MetaModel {
public:
    /// The object as JSON, for legibility with single quotes instead of double ones.
    explicit MetaModel(std::string plugins)
        : document(parse(std::move(plugins))),
          model(readCombinedModel(json::asObject(document), "meta")) {}

    // NOLINTNEXTLINE(google-explicit-constructor): reads like the model itself
    operator const CombinedModel&() const { return model; }

private:
    static json::Value parse(std::string text) {
        std::ranges::replace(text, '\'', '"');
        return json::parse(text).value();
    }

    json::Value document;
    CombinedModel model;
};

}  // namespace metagen
