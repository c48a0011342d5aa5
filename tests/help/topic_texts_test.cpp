// What the library knows of the topics without the help file.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "description/description.h"
#include "help/topic_texts.h"

using namespace pelmar;

namespace {

// Rows of flat surfaces that the template has no controls for.
const std::set<int> kWithoutControl = {IDC_FS_DEPTH_FIRST, IDC_FS_PLUNGE_WARNINGS, IDC_FS_ISLAND_PLUNGES,
                                       IDC_FS_ALIGN_PLUNGES};

void ExpectSentence(std::string_view sentence, const std::string& whose)
{
    EXPECT_GT(sentence.size(), 30u) << whose;
    EXPECT_TRUE(sentence.ends_with('.')) << whose << ": " << sentence;
    EXPECT_EQ(std::string_view::npos, sentence.find_first_of("[]{}*`#\n")) << whose << ": " << sentence;
}

TEST(TopicTexts, HaveASentenceForEveryTopicOfEveryWindow)
{
    for (const WindowDescription& window : DescribeWindows()) {
        ExpectSentence(FirstSentenceOf(window.page.topic), window.page.topic);
        for (const Control& control : window.page.controls)
            if (control.topic)
                ExpectSentence(FirstSentenceOf(control.topic), control.topic);
    }
}

TEST(TopicTexts, SpeakOfAnOptionWithoutATopicUnderItsLabel)
{
    for (const WindowDescription& window : DescribeWindows()) {
        const std::string_view ofPage = FirstSentenceOf(window.page.topic);
        for (const Control& control : window.page.controls) {
            if (!control.option || control.topic || kWithoutControl.contains(control.id))
                continue;
            const std::string_view sentence = FirstSentenceOf(window.page.topic, control.option->label);
            ExpectSentence(sentence, control.option->label);
            EXPECT_NE(ofPage, sentence) << window.page.topic << ": " << control.option->label;
        }
    }
}

TEST(TopicTexts, FallBackToTheTopicWhereThereIsNoPartOfThatLabel)
{
    const std::string_view topic = "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm";
    EXPECT_EQ(FirstSentenceOf(topic), FirstSentenceOf(topic, "Плоскость безопасности"));
}

TEST(TopicTexts, HaveTheSentenceThatNamesAnItemOfAList)
{
    const std::string_view corner = "pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm";
    EXPECT_TRUE(SentenceOnItem(corner, "Обход угла контура (30-150)", "Дуга").starts_with("«Дуга» обкатывает вершину"));
    EXPECT_TRUE(SentenceOnItem(corner, "", "Прямая").starts_with("«Прямая» продолжает"));
    // Under its label in a page's own topic, and with a full stop in an item.
    const std::string_view page = "pelmar-_options_hidd_2axis_cut_opt.htm";
    EXPECT_TRUE(SentenceOnItem(page, "Схема обработки", "По зигзагу").starts_with("«По зигзагу» режет"));
    const std::string_view finish = "pelmar-_optionspopups_hidc_2axisopts_finish_cut_on.htm";
    EXPECT_TRUE(SentenceOnItem(finish, "", "Конечн. глубина").ends_with("на полной глубине."));
    // A link stands with the other topic's title.
    const std::string_view nesting = "pelmar-_optionspopups_hidc_2axisopts_nesting_depth_type.htm";
    EXPECT_TRUE(SentenceOnItem(nesting, "", "Все").ends_with("из поля «Глубина вложения»."));
}

TEST(TopicTexts, SayNothingOfAnItemThatNoSentenceNames)
{
    EXPECT_EQ("", SentenceOnItem("pelmar-_optionspopups_hidc_2axisopts_corner_ang_type.htm", "", "Вложенные"));
    EXPECT_EQ("", SentenceOnItem("no_such_topic.htm", "", "Дуга"));
}

TEST(TopicTexts, AreEmptyForAnUnknownTopic)
{
    EXPECT_EQ("", FirstSentenceOf("no_such_topic.htm"));
    EXPECT_EQ("", FirstSentenceOf("no_such_topic.htm", "Припуск"));
    EXPECT_EQ(nullptr, DrawingOf("no_such_topic.htm"));
}

TEST(TopicTexts, AreInUtf8)
{
    EXPECT_EQ("Расстояние между соседними черновыми проходами в плоскости слоя.",
              FirstSentenceOf("pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"));
}

TEST(TopicDrawings, AreThereWhereGeometryDecides)
{
    EXPECT_STREQ("HELP_step_over", DrawingOf("pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm"));
    EXPECT_STREQ("HELP_scallop", DrawingOf("pelmar-_optionspopups_hidc_3axisopts_scallop_dist.htm"));
    EXPECT_EQ(nullptr, DrawingOf("pelmar-_optionspopups_hidc_4axisopts_write_normal.htm"));
}

TEST(TopicDrawings, AreOfThePartUnderALabel)
{
    const std::string_view page = "pelmar-_options_hidd_lathe_cut_opt.htm";
    EXPECT_EQ(nullptr, DrawingOf(page));
    EXPECT_STREQ("HELP_lathe_axes", DrawingOf(page, "Режим осей - радиус"));
}

} // namespace
