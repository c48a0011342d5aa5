// The review reads settings texts as the platform's profile functions do, whatever stands in them.
#include <random>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "module/host_folder.h"
#include "program.h"
#include "review/settings_text.h"

namespace {

using pelmar::review::SettingsText;
using pelmar::review::TextLine;
using pelmar::review::TextState;
using pelmar::review::TextValues;

constexpr char kAbsent[] = "<absent>";
constexpr int kFallback = 77;

std::string Shown(std::string_view bytes)
{
    std::string shown;
    for (const char letter : bytes) {
        char code[8];
        std::snprintf(code, sizeof code, "\\x%02x", static_cast<unsigned char>(letter));
        shown += letter >= ' ' && letter < '\x7f' ? std::string(1, letter) : std::string(code);
    }
    return shown;
}

class PlatformReading : public testing::Test {
protected:
    /// Compares what the two read under these names. False where they differ.
    bool IsReadAlike(const std::string& bytes, const std::vector<const char*>& sections,
                     const std::vector<const char*>& keys)
    {
        folder.Write("odd.ini", bytes);
        const std::string path = folder.Path("odd.ini");
        const SettingsText text(bytes);
        const TextValues values(text);
        bool isAlike = true;
        for (const char* const section : sections)
            for (const char* const key : keys) {
                char read[4096];
                GetPrivateProfileStringA(section, key, kAbsent, read, sizeof read, path.c_str());
                const TextLine* const line = text.Find(section, key);
                const std::string ours = line ? std::string(pelmar::review::Unquoted(line->value)) : kAbsent;
                EXPECT_EQ(read, ours) << "[" << section << "] " << key << " in: " << Shown(bytes);
                const auto whole = static_cast<int>(GetPrivateProfileIntA(section, key, kFallback, path.c_str()));
                const int ourWhole = values.Whole(section, key, kFallback);
                EXPECT_EQ(whole, ourWhole) << "[" << section << "] " << key << " in: " << Shown(bytes);
                isAlike = isAlike && read == ours && whole == ourWhole;
            }
        return isAlike;
    }

    tool_testing::Folder folder;
};

TEST_F(PlatformReading, OddTextsAreReadAlike)
{
    const std::string longValue(3000, '7');
    const std::string longKey(300, 'k');
    const std::string texts[] = {
        "",
        "A=1",
        "[A]\nA=1\nA=2\n",
        "[A]\nA=1\n[B]\nA=3\n[a]\nA=2\nB=4\n",
        "[A]\nA=\"1\"\nB='2'\n",
        "[A]\nA=\"1\nB=2\"\n",
        "[A]\nA=\"\"\nB=\"\n",
        "[A]\nA=\"\"5\"\"\nB='\"6\"'\n",
        "[A]\nA= \" 1 \" \nB=\t2\t\n",
        "[A]\nA=0x1F\nB=0X1F\n",
        "[A]\nA=0b11\nB=0o17\n",
        "[A]\nA=-0x10\nB=+-5\n",
        "[A]\nA=5abc\nB=abc\n",
        "[A]\nA=\nB= \n",
        "[A]\nA=99999999999\nB=-99999999999\n",
        "[A]\nA=4294967295\nB=2147483648\n",
        "[A]\nA=1.9\nB=1e3\n",
        "[A]\r\nA=1\r\nB=2",
        "[A]\rA=1\rB=2\r",
        "[A]\rA=1\nB=2\r",
        "[A]\nA=1\r\rB=2\n",
        "[[A]\nA=1\n",
        "[A]]\nA=1\n",
        "[A] B=2\nA=1\n",
        "[A];x\nA=1\n",
        "[A\nA=1\n",
        "A]\nA=1\n",
        "[ A ]\nA=1\n",
        "[A ]\nA=1\n",
        " [A]\n A=1\n",
        "[]\nA=1\n",
        "[A]\n=1\nA=2\n",
        "[A]\nA==1\nB=1=2\n",
        "[A]\nA =1\n B = 2 3 \n",
        "[A]\nA\nB=2\n",
        "[A]\nA\nA=2\n",
        "[A]\n;A=1\nA=2\n",
        "[A]\nA=1;2\nB=;\n",
        "[A]\n#A=1\nA=3\n",
        "[A]\n\n\nA=1\n\n[B]\n\nB=2\n",
        "[A]\nA=1\n\x1a\nB=2\n",
        "[A]\nA=1\x1a\n",
        "[A]\nA=\x01 5\n",
        "[A]\nA=\v5\nB=\f6\n",
        "[A]\n\vA=5\n\fB=6\n",
        "\n\n[A]\nA=1\n",
        "[A]\nA=" + longValue + "\n",
        "[A]\n" + longKey + "=1\nA=2\n",
        "[A]\nA=" + std::string(200, ' ') + "5\n",
        "[A]\nA=\xff\xfe\nB=\xcf\n",
        "[\xcf]\nA=1\n[A]\nB=2\n",
        "[A]\na b=3\nA=1\n",
        "[B]\nB=1\n[A]\nA=1\n[B]\nA=2\n",
    };
    for (const std::string& text : texts)
        IsReadAlike(text, {"A", "a", "B"}, {"A", "b", "a b", "=1", "#A"});
}

/// Texts of the pieces that matter, put together by chance. A failure prints its text.
TEST_F(PlatformReading, TextsMadeByChanceAreReadAlike)
{
    const std::vector<std::string> pieces = {"[",   "]",   "=",  "A",  "B",    "\"",    "'",    " ",  "\t",   ";",
                                             "\r",  "\n",  "\n", "\n", "1",    "-2",    "0x",   "+",  "7",    ".",
                                             "[A]", "[B]", "A=", "B=", "\r\n", "A=1\n", "\x1a", "\v", "\xe0", "abc"};
    std::mt19937 random(20260719);
    int different = 0;
    for (int round = 0; round < 1500 && different < 5; ++round) {
        std::string text = round % 2 ? "[A]\n" : "";
        for (unsigned piece = random() % 20; piece > 0; --piece)
            text += pieces[random() % pieces.size()];
        different += !IsReadAlike(text, {"A", "B"}, {"A", "B"});
    }
    EXPECT_EQ(0, different);
}

TEST_F(PlatformReading, RealsAreThoseOfTheLibrary)
{
    const HostFolder host;
    const std::string longDigits(400, '3');
    for (const std::string& value : {std::string("0.08"),    std::string("-1.5"),
                                     std::string("+2"),      std::string("+-3"),
                                     std::string("--3"),     std::string("1e3"),
                                     std::string("1E-3"),    std::string("1e39"),
                                     std::string("1e-60"),   std::string(".5"),
                                     std::string("5."),      std::string("0x10"),
                                     std::string("2.5 mm"),  std::string("2,5"),
                                     std::string("nan"),     std::string("inf"),
                                     std::string("\"2.5\""), std::string("' 2.5'"),
                                     std::string(" \t 7"),   std::string(""),
                                     std::string("text"),    longDigits,
                                     "0." + longDigits}) {
        const std::string bytes = "[A]\nA=" + value + "\n";
        host.WriteSettings(bytes);
        const SettingsText text(bytes);
        EXPECT_EQ(pelmar::ReadReal("A", "A", 0.1), TextValues(text).Real("A", "A", 0.1)) << value;
    }
}

} // namespace
