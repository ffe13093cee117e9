// The name that was most likely meant where an unknown one stands.
#pragma once

#include <cstddef>
#include <string_view>

#include "json/value.h"

namespace metagen::lint {

/// Looks for names that differ in few letters. Each asked name costs a walk along all candidates,
/// so that a finder stops answering when a document has asked for too much.
class NearestName {
public:
    /// Begins to look for the name.
    void begin(std::string_view name);

    /// Takes a candidate into account.
    void consider(std::string_view candidate);

    /// The nearest candidate, of equally near ones the first; empty when none is near.
    [[nodiscard]] std::string_view nearest() const { return best; }

    /// The nearest of the object's keys.
    std::string_view among(json::Object candidates, std::string_view name);

private:
    std::string_view wanted;
    std::string_view best;
    std::size_t bestDistance = 0;
    std::size_t stepsLeft = 100'000'000;  ///< about a second
};

/// The smallest number of letters to insert, delete, replace or swap with their neighbour to make
/// one of the other, without regard to case; the limit when it is that or more.
std::size_t editDistance(std::string_view left, std::string_view right, std::size_t limit);

}  // namespace metagen::lint
