#include "speech/DecoderArguments.h"
#include "speech/VoCommandArray.h"
#include "speech/VoPSRecognizer.h"

#include <QStringList>
#include <cstring>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList commandArray(bool isJSGF)
{
    return VoCommandArray().commandArrayForLanguageModel(u"/m/p.DMP"_s, u"/m/p.dic"_s, u"/am"_s,
                                                         isJSGF);
}

} // namespace

TEST(DecoderConfiguration, NgramModelOptionsInTheirOrder)
{
    const QStringList expected{u"-lm"_s,       u"/m/p.DMP"_s, u"-beam"_s,        u"1e-96"_s,
                               u"-dict"_s,     u"/m/p.dic"_s, u"-fwdflatbeam"_s, u"1e-128"_s,
                               u"-hmm"_s,      u"/am"_s,      u"-lw"_s,          u"6.500000"_s,
                               u"-samprate"_s, u"16000"_s};
    EXPECT_EQ(commandArray(false), expected);
}

TEST(DecoderConfiguration, GrammarTakesJsgfAndALighterLanguageWeight)
{
    const QStringList options = commandArray(true);
    ASSERT_EQ(options.size(), 14);
    EXPECT_EQ(options[0], u"-jsgf"_s);
    EXPECT_EQ(options[1], u"/m/p.DMP"_s);
    EXPECT_EQ(options[10], u"-lw"_s);
    EXPECT_EQ(options[11], u"3.000000"_s);
}

TEST(DecoderConfiguration, PackagePointsAtEveryTextInOrder)
{
    for (const bool secondItemIsEmpty : {false, true}) {
        const std::optional<DecoderArguments> package = VoPSRecognizer::setUpCommandArray(
            VoCommandArray(), secondItemIsEmpty, u"/m/ö.DMP"_s, u"/m/p.dic"_s, u"/am"_s, false);
        ASSERT_TRUE(package);
        ASSERT_EQ(package->argc(), 14);
        ASSERT_EQ(package->commandArray.size(), 14);
        for (int i = 0; i < 14; ++i)
            EXPECT_EQ(QString::fromUtf8(package->argv[static_cast<size_t>(i)]),
                      package->commandArray[i])
                << "slot " << i << (secondItemIsEmpty ? " with the blank second slot" : "");
    }
}

TEST(DecoderConfiguration, DefinitionsAreTheLibrarysThenArgfileThenTheTerminator)
{
    const std::vector<arg_t> definitions = decoderOptionDefinitions();
    ASSERT_GE(definitions.size(), 3u);
    const arg_t &argfile = definitions[definitions.size() - 2];
    ASSERT_NE(argfile.name, nullptr);
    EXPECT_STREQ(argfile.name, "-argfile");
    EXPECT_EQ(argfile.type, ARG_STRING);
    EXPECT_EQ(argfile.deflt, nullptr);
    EXPECT_EQ(definitions.back().name, nullptr);

    // The library's table comes first, whole: its options and its defaults.
    const arg_t *library = ps_args();
    size_t count = 0;
    for (; library[count].name != nullptr; ++count) {
        ASSERT_LT(count, definitions.size() - 2);
        EXPECT_STREQ(definitions[count].name, library[count].name);
        EXPECT_EQ(definitions[count].deflt, library[count].deflt);
    }
    EXPECT_EQ(count + 2, definitions.size());
}

TEST(DecoderConfiguration, TooShortAListGivesNoPackage)
{
    EXPECT_FALSE(DecoderArguments::fromCommandArray({u"-lm"_s, u"x"_s}, false));
    EXPECT_FALSE(DecoderArguments::fromCommandArray({}, true));
    EXPECT_TRUE(DecoderArguments::fromCommandArray({u"-lm"_s, u"x"_s, u"-dict"_s}, false));
}
