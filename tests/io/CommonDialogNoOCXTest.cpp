#include "io/CommonDialogNoOCX.h"
#include "support/ScriptedChoosers.h"

#include <gtest/gtest.h>

TEST(CommonDialogNoOCX, OpenFileHandsTitleAndFilterOverAndReturnsThePathOrNothing) {
    ScriptedFileChooser files;
    ScriptedColorChooser colors;
    CommonDialogNoOCX dialog(files, colors);
    files.queueAnswer("/home/user/new scene.tvm");

    EXPECT_EQ(dialog.OpenFile("Tavrin Mesh File(*.tvm)|*.tvm", "Save File"),
              "/home/user/new scene.tvm");
    EXPECT_EQ(dialog.OpenFile("Devide Dependent Bitmap(*.bmp)|*.bmp", "Open File"), "");

    ASSERT_EQ(files.requests().size(), 2u);
    EXPECT_EQ(files.requests()[0].title, "Save File");
    EXPECT_EQ(files.requests()[0].filter, "Tavrin Mesh File(*.tvm)|*.tvm");
    EXPECT_EQ(files.requests()[1].title, "Open File");
    EXPECT_EQ(files.requests()[1].filter, "Devide Dependent Bitmap(*.bmp)|*.bmp");
}

TEST(CommonDialogNoOCX, GetColorTellsBlackFromCancel) {
    ScriptedFileChooser files;
    ScriptedColorChooser colors;
    CommonDialogNoOCX dialog(files, colors);
    colors.queueAnswer(0);
    colors.queueAnswer(255 + 256 * 128 + 65536 * 1);

    EXPECT_EQ(dialog.getColor(), 0);
    EXPECT_EQ(dialog.getColor(), 255 + 256 * 128 + 65536 * 1);
    EXPECT_EQ(dialog.getColor(), -1);
}
