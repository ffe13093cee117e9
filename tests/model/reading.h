// What is read of a "plugins" object, for the tests of the models and of the tables that are made
// of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "json/document.h"
#include "model/meta_model.h"
#include "support/message_of.h"

namespace metagen {

/// A document; for legibility, in its text single quotes stand for double ones.
inline json::Document documentOf(std::string text) {
    std::ranges::replace(text, '\'', '"');
    return json::Document(std::move(text));
}

inline json::Object objectOf(const json::Document& document) {
    EXPECT_TRUE(document.isValid()) << document.text();
    return json::asObject(document.root());
}

/// The model of a "plugins" object, together with the document that it borrows from.
class ReadModel {
public:
    explicit ReadModel(std::string plugins)
        : document(documentOf(std::move(plugins))), model(readMeta(objectOf(document), arena)) {}

    // NOLINTNEXTLINE(google-explicit-constructor): reads like the model itself
    operator const MetaModel&() const { return model; }

private:
    json::Document document;
    Arena arena;
    MetaModel model;
};

}  // namespace metagen
