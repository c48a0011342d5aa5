// The examples of the administrators' page are true: each is run on the example files, in the page's order, and must
// print what the page says.
#include <sstream>

#include <gtest/gtest.h>

#include <PelmarDlgs.h>

#include "program.h"

namespace {

using tool_testing::Answer;
using tool_testing::Folder;

struct Example {
    std::string command;
    std::string output;
};

/// The blocks of the page that begin with the program's name.
std::vector<Example> ExamplesOf(const std::string& page)
{
    constexpr std::string_view kPrompt = "> PelmarSettings ";
    std::vector<Example> examples;
    bool isBlock = false;
    bool isExample = false;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```")) {
            isBlock = !isBlock;
            isExample = false;
        } else if (isBlock && line.starts_with(kPrompt)) {
            examples.push_back({line.substr(kPrompt.size()), ""});
            isExample = true;
        } else if (isExample) {
            examples.back().output += line + "\n";
        }
    }
    return examples;
}

std::vector<std::string> WordsOf(const std::string& command)
{
    std::vector<std::string> words(1);
    bool isQuoted = false;
    for (const char letter : command) {
        if (letter == '"')
            isQuoted = !isQuoted;
        else if (letter == ' ' && !isQuoted)
            words.emplace_back();
        else
            words.back() += letter;
    }
    return words;
}

TEST(Documentation, ShowsWhatTheProgramPrints)
{
    const std::vector<Example> examples = ExamplesOf(tool_testing::SourceFile("docs/settings-tool.md"));
    ASSERT_GT(examples.size(), 8u);
    const Folder folder;
    for (const char* const name : {"CURRENT.INI", "DEFAULT.INI", "SHOP.INI", "MACHINE2.INI"})
        folder.Write(name, tool_testing::SourceFile(std::string("docs/settings-tool/") + name));
    for (const Example& example : examples) {
        const Answer answer = folder.Run(WordsOf(example.command));
        EXPECT_EQ(example.output, answer.out + answer.error) << example.command;
    }
}

} // namespace
