#include "frame/catalogue_tables.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

namespace {

using VarnholtMath::ValueTypes::catalogue::KeywordRow;
using VarnholtMath::ValueTypes::catalogue::keywordRowCount;
using VarnholtMath::ValueTypes::catalogue::keywordRows;

const KeywordRow* findRow(int id)
{
    for (unsigned i = 0; i < keywordRowCount; ++i)
        if (keywordRows[i].id == id)
            return &keywordRows[i];
    return nullptr;
}

bool filled(const char* s) { return s != nullptr && s[0] != '\0'; }

} // namespace

// The lookup relies on the rows being sorted and every row being complete.
TEST(CatalogueKeywords, TableShape)
{
    ASSERT_EQ(keywordRowCount, 361u);

    std::set<std::string> categories;
    for (unsigned i = 0; i < keywordRowCount; ++i) {
        const KeywordRow& row = keywordRows[i];
        SCOPED_TRACE(row.id);
        EXPECT_GE(row.id, 528);
        EXPECT_LE(row.id, 1128);
        if (i > 0) {
            EXPECT_LT(keywordRows[i - 1].id, row.id);
        }
        EXPECT_TRUE(filled(row.keyword));
        EXPECT_TRUE(filled(row.title));
        ASSERT_TRUE(filled(row.category));
        categories.insert(row.category);
    }
    EXPECT_EQ(categories.size(), 28u);
    EXPECT_EQ(keywordRows[0].id, 528);
    EXPECT_EQ(keywordRows[keywordRowCount - 1].id, 1128);
}

// Rows whose texts are fixed character for character, the misspelled title
// of the moving average included.
TEST(CatalogueKeywords, FixedRows)
{
    struct Expected {
        int id;
        const char* keyword;
        const char* title;
        const char* category;
    };
    const Expected expected[] = {
        {568, "movavg", "Moving Avegare Filter", "Digital Signal Processing"},
        {780, "chem coeff", "Chem Coefficients", "Chemistry"},
        {528, "dblexponentialinv", "Double Exponential Inverse", "Distributions"},
    };
    for (const Expected& e : expected) {
        SCOPED_TRACE(e.id);
        const KeywordRow* row = findRow(e.id);
        ASSERT_NE(row, nullptr);
        EXPECT_STREQ(row->keyword, e.keyword);
        EXPECT_STREQ(row->title, e.title);
        EXPECT_STREQ(row->category, e.category);
    }
    EXPECT_EQ(findRow(527), nullptr);
    EXPECT_EQ(findRow(543), nullptr);
}
