#include "datafiles/file_name.h"

#include <gtest/gtest.h>

namespace tarvold::testing {
namespace {

struct Sample
{
    const char *name;
    const char *fileName;
    bool fits;
};

void PrintTo(const Sample &sample, std::ostream *out)
{
    *out << sample.name;
}

class TvdName : public ::testing::TestWithParam<Sample>
{
};

TEST_P(TvdName, FitsThePattern)
{
    EXPECT_EQ(isTvdName(QString::fromLatin1(GetParam().fileName)), GetParam().fits);
}

INSTANTIATE_TEST_SUITE_P(, TvdName,
                         ::testing::Values(Sample{"Default", "stipulations.tvd", true},
                                           Sample{"ExtensionAlone", ".tvd", true},
                                           Sample{"FullPath", "/a b/c.d/e.tvd", true},
                                           Sample{"TwoExtensions", "a.TVD.tvd", true},
                                           Sample{"BracketsAndStars", "[a]*?.tvd", true},
                                           Sample{"Empty", "", false},
                                           Sample{"UpperCase", "stipulations.TVD", false},
                                           Sample{"MixedCase", "stipulations.Tvd", false},
                                           Sample{"NoExtension", "stipulations", false},
                                           Sample{"NoDot", "tvd", false},
                                           Sample{"OtherExtension", "stipulations.txt", false},
                                           Sample{"MoreBehindIt", "stipulations.tvdx", false},
                                           Sample{"BlankBehindIt", "stipulations.tvd ", false}),
                         [](const auto &sample) { return sample.param.name; });

} // namespace
} // namespace tarvold::testing
