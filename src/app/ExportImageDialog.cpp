#include "app/ExportImageDialog.h"

#include "platform/Prompts.h"

#include <charconv>
#include <utility>

ExportImageDialog::ExportImageDialog() {
    addControl("lblViewport", lblViewport);
    addControl("lstViewport", lstViewport, [this] { lstViewport_Click(); });
    addControl("optShownSize", optShownSize, [this] { optShownSize_Click(); });
    addControl("optTypedSize", optTypedSize, [this] { optTypedSize_Click(); });
    addControl("lblWidth", lblWidth);
    addControl("txtWidth", txtWidth);
    addControl("lblHeight", lblHeight);
    addControl("txtHeight", txtHeight);
    addControl("cmdExport", cmdExport, [this] { cmdExport_Click(); });
    addControl("cmdCancel", cmdCancel, [this] { cmdCancel_Click(); });
}

void ExportImageDialog::initialize(std::vector<Choice> choices) {
    choices_ = std::move(choices);
    lstViewport.items.clear();
    for (const Choice& choice : choices_) {
        lstViewport.items.push_back(choice.name);
    }
    lstViewport.ListIndex = choices_.empty() ? -1 : 0;
    cmdExport.Enabled = !choices_.empty();
    optShownSize_Click();
}

void ExportImageDialog::lstViewport_Click() {
    if (optShownSize.Value) {
        showShownSize();
    }
}

void ExportImageDialog::optShownSize_Click() {
    optShownSize.Value = true;
    optTypedSize.Value = false;
    showShownSize();
}

void ExportImageDialog::optTypedSize_Click() {
    optShownSize.Value = false;
    optTypedSize.Value = true;
    txtWidth.Enabled = true;
    txtHeight.Enabled = true;
    txtWidth.Focused = true;
}

void ExportImageDialog::showShownSize() {
    txtWidth.Enabled = false;
    txtHeight.Enabled = false;
    if (getChoice() >= 0 && getChoice() < static_cast<int>(choices_.size())) {
        const Choice& choice = choices_[static_cast<size_t>(getChoice())];
        txtWidth.Text = std::to_string(choice.width);
        txtHeight.Text = std::to_string(choice.height);
    }
}

int ExportImageDialog::side(TextBoxState& box, const std::string& name) {
    const size_t first = box.Text.find_first_not_of(' ');
    const size_t last = box.Text.find_last_not_of(' ');
    int value = 0;
    if (first != std::string::npos) {
        const char* end = box.Text.data() + last + 1;
        const auto [stop, error] = std::from_chars(box.Text.data() + first, end, value);
        if (error != std::errc() || stop != end) {
            value = 0;
        }
    }
    if (value < 1 || value > largestSide) {
        showMessage("The " + name + " must be a whole number from 1 to " +
                        std::to_string(largestSide) + ".",
                    caption(), MessageIcon::Exclamation);
        box.Text.clear();
        box.Focused = true;
        return 0;
    }
    return value;
}

void ExportImageDialog::cmdExport_Click() {
    if (getChoice() < 0 || getChoice() >= static_cast<int>(choices_.size())) {
        return;
    }
    const int width = side(txtWidth, "width");
    const int height = width == 0 ? 0 : side(txtHeight, "height");
    if (height == 0) {
        return;
    }
    width_ = width;
    height_ = height;
    accepted_ = true;
    close();
}
