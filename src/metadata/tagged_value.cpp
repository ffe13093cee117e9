#include "metadata/tagged_value.h"

namespace metagen {

namespace {

struct ListSize {
    template <typename Element>
    std::size_t operator()(const std::vector<Element>& elements) const {
        return elements.size();
    }

    template <typename Single>
    std::size_t operator()(const Single& /*value*/) const {
        return 0;
    }
};

}  // namespace

std::size_t listSize(const TaggedValue& value) { return std::visit(ListSize(), value.payload); }

}  // namespace metagen
