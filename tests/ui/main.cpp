// Entry of the test programs that show windows.
#include <gtest/gtest.h>

#include "ui_thread.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    ui::UiThread::Get();
    return RUN_ALL_TESTS();
}
