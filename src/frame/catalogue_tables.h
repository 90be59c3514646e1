#pragma once

// Internal layout of the catalogue's text tables. The tables are plain
// constant data so that looking a row up allocates nothing until the strings
// are built for the caller.

namespace VarnholtMath {
namespace ValueTypes {
namespace catalogue {

// The two common sentences that close a description whose result follows the
// shape of the input.
enum DescriptionEnding : unsigned char {
    noEnding = 0,
    endingWithComplex = 1, // "... scalar, vector, matrix or complex number."
    endingWithoutComplex = 2 // "... scalar, vector or matrix"
};

// One described row: lines[0] is the description (without the common
// ending), lines[1] the result, lines[2..] one per argument; unused entries
// are null. 18 arguments is the most any row has.
struct DescriptionRow {
    int id;
    DescriptionEnding ending;
    const char* lines[21];
};

// Rows sorted by id.
extern const DescriptionRow descriptionRows[];
extern const unsigned descriptionRowCount;

struct KeywordRow {
    int id;
    const char* keyword;
    const char* title;
    const char* category;
};

// Rows sorted by id.
extern const KeywordRow keywordRows[];
extern const unsigned keywordRowCount;

} // namespace catalogue
} // namespace ValueTypes
} // namespace VarnholtMath
