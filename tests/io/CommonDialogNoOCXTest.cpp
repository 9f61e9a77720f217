#include "io/CommonDialogNoOCX.h"
#include "support/ScriptedChoosers.h"

#include <gtest/gtest.h>

TEST(CommonDialogNoOCX, HandsTitleAndFilterOverAndTellsBlackFromCancel) {
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

    colors.queueAnswer(0);
    EXPECT_EQ(dialog.getColor(), 0);
    EXPECT_EQ(dialog.getColor(), -1);
}
