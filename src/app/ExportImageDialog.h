#pragma once

#include "platform/ModalDialog.h"

#include <string>
#include <vector>

// File > Export Image...: which picture to take (one of the shown viewports, or all four as
// one picture when four are shown) and its size, the picture's own or a width and height the
// user types. The Qt view (qt/ExportImageDialogView) shows it.
//
// Usage: initialize with the pictures to choose from, show the dialog modally; when
// hasAccepted, read getChoice, getWidth and getHeight.
class ExportImageDialog : public ModalDialog {
public:
    // A picture the user may choose, as it is on the screen.
    struct Choice {
        std::string name;
        int width = 0;
        int height = 0;
    };
    // The largest width or height typed.
    static constexpr int largestSide = 16384;

    LabelState lblViewport{"Viewport:"};
    ListState lstViewport;
    OptionState optShownSize{"Size on the screen"};
    OptionState optTypedSize{"Other size"};
    LabelState lblWidth{"Width:"};
    TextBoxState txtWidth;
    LabelState lblHeight{"Height:"};
    TextBoxState txtHeight;
    ButtonState cmdExport{"&Export..."};
    ButtonState cmdCancel{"&Cancel"};

    ExportImageDialog();

    std::string caption() const override { return "Export Image"; }

    // The first choice is preselected at its size on the screen.
    void initialize(std::vector<Choice> choices);
    bool hasAccepted() const { return accepted_; }
    // The chosen picture's place among the choices, and the size to draw it at.
    int getChoice() const { return lstViewport.ListIndex; }
    int getWidth() const { return width_; }
    int getHeight() const { return height_; }

    void lstViewport_Click();
    void optShownSize_Click();
    void optTypedSize_Click();
    // Refused with a message, the box emptied and focused, unless both sides are whole
    // numbers from 1 to largestSide.
    void cmdExport_Click();
    void cmdCancel_Click() { close(); }

private:
    // The text boxes show the chosen picture's size while that size is chosen.
    void showShownSize();
    // The number in box, or 0 after the message that refuses it.
    int side(TextBoxState& box, const std::string& name);

    std::vector<Choice> choices_;
    bool accepted_ = false;
    int width_ = 0;
    int height_ = 0;
};
