// The exceptions of the SDK binding. Commands catch `Qyra::QyraException` and print its text.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace Qyra {

/// A failure of the SDK or of its loading; its only state is a text for the user.
class QyraException : public std::exception {
public:
    explicit QyraException(std::string message) : text(std::move(message)) {}

    /// A copy of the text.
    [[nodiscard]] std::string message() const { return text; }

    [[nodiscard]] const char* what() const noexcept override { return text.c_str(); }

private:
    std::string text;
};

/// The library could not be loaded, or lacks an entry point.
class InitErr : public QyraException {
public:
    using QyraException::QyraException;
};

/// The SDK could not create a renderer.
class InstantiationErr : public QyraException {
public:
    InstantiationErr(std::string message, std::uint32_t firstCode, std::uint32_t secondCode)
        : QyraException(std::move(message)), code(firstCode), detail(secondCode) {}

    /// The SDK's error code of the failed creation.
    [[nodiscard]] std::uint32_t errorCode() const { return code; }

    /// A second code of the SDK's exception; creation has none to give and leaves it 0.
    [[nodiscard]] std::uint32_t detailCode() const { return detail; }

private:
    std::uint32_t code;
    std::uint32_t detail;
};

}  // namespace Qyra
