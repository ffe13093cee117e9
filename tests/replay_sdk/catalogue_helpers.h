// Catalogues from literal JSON, for the tests of its readers.
#pragma once

#include <memory>
#include <string>

#include "replay_sdk/catalogue_node.h"
#include "replay_sdk/catalogue_reader.h"

namespace metagen::replay {

/// The text of the error with which the catalogue is refused.
inline std::string problemOf(const std::string& catalogue) {
    try {
        readCatalogue(catalogue);
    } catch (const CatalogueError& error) {
        return error.what();
    }
    return "no problem";
}

/// A catalogue with one class "C", which has one parameter "p" given by the object's text.
inline std::string withParameter(const std::string& parameter) {
    return R"({"plugins":{"C":{"params":{"p":)" + parameter + "}}}}";
}

/// The parameter of such a catalogue.
inline Parameter readOne(const std::string& parameter) {
    return std::move(readCatalogue(withParameter(parameter))->parameters.at(0));
}

/// The value of a parameter whose "default" is given by the object's text.
inline DefaultValue readDefaultOf(const std::string& taggedDefault) {
    return std::move(readOne(R"({"typeCode":0,"default":)" + taggedDefault + "}").defaultValue);
}

}  // namespace metagen::replay
