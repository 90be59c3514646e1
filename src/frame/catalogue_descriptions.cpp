// The help texts of the catalogue, one row per described function: the
// description, the result line and one line per argument.

#include "frame/catalogue_tables.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace catalogue {

const DescriptionRow descriptionRows[] = {
#if __has_include("frame/catalogue_descriptions_1.inc")
#include "frame/catalogue_descriptions_1.inc"
#endif
#if __has_include("frame/catalogue_descriptions_2.inc")
#include "frame/catalogue_descriptions_2.inc"
#endif
    {2147483647, noEnding, {nullptr}},
};

// The last entry only closes the list.
const unsigned descriptionRowCount = sizeof(descriptionRows) / sizeof(descriptionRows[0]) - 1;

} // namespace catalogue
} // namespace ValueTypes
} // namespace VarnholtMath
