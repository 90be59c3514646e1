// Filters, medians and comparisons of images against reference results made
// with SciPy and NumPy (data/make_image_reference.py). Pixels must match
// exactly; mse and psnr to 1e-12 relative.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "image_test_support.h"

using namespace image_tests;

namespace {

struct Reference {
    std::map<std::string, vhValue> images;
    std::vector<std::vector<std::string>> records;
};

const Reference& reference()
{
    static const Reference data = [] {
        Reference r;
        std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/image/data/image_reference.txt");
        std::string line;
        while (std::getline(in, line)) {
            if (line.empty() || line[0] == '#')
                continue;
            std::istringstream fields(line);
            std::vector<std::string> f;
            for (std::string s; fields >> s;)
                f.push_back(s);
            if (f[0] == "image") {
                std::vector<unsigned int> pixels;
                for (std::size_t i = 4; i < f.size(); ++i)
                    pixels.push_back(unsigned(std::stoul(f[i])));
                r.images[f[1]] = makeImage(pixels, unsigned(std::stoul(f[2])), unsigned(std::stoul(f[3])));
            } else {
                r.records.push_back(f);
            }
        }
        return r;
    }();
    return data;
}

// Compares an image result with the expected shape and pixels from field
// `first` on (rows, columns, pixels).
void expectImage(const vhValue& result, const std::vector<std::string>& f, std::size_t first, const std::string& what)
{
    const unsigned rows = unsigned(std::stoul(f[first])), columns = unsigned(std::stoul(f[first + 1]));
    ASSERT_TRUE(result.isImage()) << what;
    ASSERT_EQ(rows, result.matrixRows()) << what;
    ASSERT_EQ(columns, result.matrixColumns()) << what;
    const std::vector<unsigned int> got = pixelsOf(result);
    int reported = 0;
    for (std::size_t i = 0; i < got.size(); ++i) {
        const unsigned expected = unsigned(std::stoul(f[first + 2 + i]));
        if (got[i] != expected && reported++ < 3)
            ADD_FAILURE() << what << ": pixel " << i << " is " << std::hex << got[i] << ", expected " << expected;
    }
}

int countOf(const std::string& kind)
{
    int n = 0;
    for (const auto& f : reference().records)
        n += f[0] == kind;
    return n;
}

} // namespace

TEST(ImageReference, FiltersMatchCorrelationOfPlanes)
{
    vhMath math;
    const std::map<std::string, vhValue (vhMath::*)(const vhValue&)> fixed = {
        {"smooth", &vhMath::ImageSmooth_f}, {"edge", &vhMath::ImageEdge_f}, {"mblur", &vhMath::ImageMblur_f},
        {"sharpen", &vhMath::ImageSharpen_f}, {"raised", &vhMath::ImageRaised_f}};
    ASSERT_GE(countOf("filter"), 40);
    for (const auto& f : reference().records) {
        if (f[0] != "filter")
            continue;
        const vhValue& image = reference().images.at(f[1]);
        std::vector<double> k;
        for (int i = 0; i < 9; ++i)
            k.push_back(std::stod(f[3 + i]));
        const std::string what = "filter " + f[2] + " of " + f[1];
        expectImage(math.ImageFilter_f(image, numericMatrix(k, 3, 3)), f, 12, what);
        auto member = fixed.find(f[2]);
        if (member != fixed.end())
            expectImage((math.*(member->second))(image), f, 12, what + " (fixed)");
    }
}

TEST(ImageReference, MediansMatchSortedWindows)
{
    vhMath math;
    ASSERT_GE(countOf("median"), 40);
    for (const auto& f : reference().records) {
        if (f[0] != "median")
            continue;
        const vhValue& image = reference().images.at(f[1]);
        std::vector<double> size = {std::stod(f[2]), std::stod(f[3])};
        const std::string what = "median [" + f[2] + ", " + f[3] + "] of " + f[1];
        const vhValue result = math.ImageMedian_f(image, vhVector(size.data(), 2, true));
        if (f[4] == "undefined")
            EXPECT_TRUE(result.isNull()) << what;
        else
            expectImage(result, f, 4, what);
    }
}

TEST(ImageReference, DifferencesAndErrors)
{
    vhMath math;
    ASSERT_GE(countOf("msepsnr"), 15);
    for (const auto& f : reference().records) {
        const std::string what = f[0] + " " + f[1] + " " + f[2];
        if (f[0] == "absdiff") {
            expectImage(math.ImageAbsDiff_f(reference().images.at(f[1]), reference().images.at(f[2])), f, 3, what);
        } else if (f[0] == "msepsnr") {
            const vhValue r = math.ImageMsePsnr_f(reference().images.at(f[1]), reference().images.at(f[2]));
            ASSERT_EQ(2u, r.vectorSize()) << what;
            const vhValue mse = r.value(0), psnr = r.value(1);
            EXPECT_EQ(tagDouble, mse.valueType()) << what;
            const double expectedMse = std::stod(f[3]);
            EXPECT_NEAR(expectedMse, mse.toDouble(), 1e-12 * expectedMse) << what;
            if (f[4] == "undefined") {
                EXPECT_TRUE(psnr.isNull()) << what;
            } else {
                const double expectedPsnr = std::stod(f[4]);
                EXPECT_NEAR(expectedPsnr, psnr.toDouble(), 1e-12 * std::fabs(expectedPsnr)) << what;
            }
        }
    }
}
