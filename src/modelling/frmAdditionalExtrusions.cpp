#include "modelling/frmAdditionalExtrusions.h"

#include "platform/Prompts.h"

#include <array>

namespace {

struct Kind {
    const char* name;
    const char* title;
    std::array<const char*, 3> prompts;
};

const std::array<Kind, 3> kinds{{
    {"Translate", "Translate Setting", {"X Translation:", "Y Translation:", "Z Translation:"}},
    {"Rotate", "Rotation Setting", {"X Rotation:", "Y Rotation:", "Z Rotation:"}},
    {"Scale", "Scale Setting", {"X Scale:", "Y Scale:", "Z Scale:"}},
}};

} // namespace

frmAdditionalExtrusions::frmAdditionalExtrusions() {
    for (const Kind& kind : kinds) {
        List1.items.emplace_back(kind.name);
    }
    addControl("List1", List1);
    addControl("mnuSelect", mnuSelect, [this] { mnuSelect_Click(); });
    addControl("mnuCancel", mnuCancel, [this] { mnuCancel_Click(); });
}

void frmAdditionalExtrusions::mnuSelect_Click() {
    function_.clear();
    if (List1.ListIndex >= 0) {
        const Kind& kind = kinds[static_cast<size_t>(List1.ListIndex)];
        function_ = std::string(kind.name) + "(";
        for (size_t axis = 0; axis < kind.prompts.size(); ++axis) {
            // A cancelled box gives an empty value, as an emptied one does.
            function_ += activePrompts().inputBox(kind.prompts[axis], kind.title, "0").value_or("");
            function_ += axis + 1 < kind.prompts.size() ? "," : ")";
        }
    }
    close();
}

void frmAdditionalExtrusions::mnuCancel_Click() {
    function_.clear();
    close();
}
