// The drawings of the help's topics among the library's resources.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "description/description.h"
#include "help/topic_texts.h"

using namespace pelmar;

namespace {

std::set<std::string> NamedDrawings()
{
    std::set<std::string> drawings;
    const auto add = [&drawings](const char* drawing) {
        if (drawing)
            drawings.insert(drawing);
    };
    for (const WindowDescription& window : DescribeWindows())
        for (const Control& control : window.page.controls) {
            if (control.topic)
                add(DrawingOf(control.topic));
            if (control.option)
                add(DrawingOf(window.page.topic, control.option->label));
        }
    return drawings;
}

TEST(TopicDrawings, AreBitmapsOfTheLibrary)
{
    const HMODULE library = GetModuleHandleW(L"PelmarDlgs.dll");
    EXPECT_LT(8u, NamedDrawings().size());
    for (const std::string& drawing : NamedDrawings()) {
        const HANDLE bitmap = LoadImageA(library, drawing.c_str(), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
        ASSERT_NE(nullptr, bitmap) << drawing;
        BITMAP facts = {};
        GetObject(bitmap, sizeof facts, &facts);
        EXPECT_LT(200, facts.bmWidth) << drawing;
        EXPECT_LT(100, facts.bmHeight) << drawing;
        DeleteObject(bitmap);
    }
}

} // namespace
