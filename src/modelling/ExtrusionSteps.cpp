#include "modelling/ExtrusionSteps.h"

#include "geometry/M3Ops.h"
#include "geometry/NumberText.h"
#include "geometry/Rounding.h"
#include "modelling/Tokens.h"
#include "scene/Transformed3d.h"

#include <array>
#include <optional>

namespace {

std::optional<std::array<float, 3>> threeNumbers(const std::string& values) {
    std::vector<std::string> tokens;
    Tokens::tokenize(values, ",", tokens);
    if (tokens.size() != 3) {
        return std::nullopt;
    }
    std::array<float, 3> numbers{};
    for (size_t i = 0; i < 3; ++i) {
        const std::optional<float> number = NumberText::parseSingle(tokens[i]);
        if (!number) {
            return std::nullopt;
        }
        numbers[i] = *number;
    }
    return numbers;
}

} // namespace

bool ExtrusionSteps::appendEntry(std::vector<Matrix4>& step, const std::string& entry, float n) {
    std::string rest = entry;
    const std::string name = Tokens::getNextToken(rest, "(");
    if (name != "Translate" && name != "Rotate" && name != "Scale") {
        return true;
    }
    const auto values = threeNumbers(Tokens::removeSubstring(rest, ")"));
    if (!values) {
        return false;
    }
    const float a = (*values)[0] / n;
    const float b = (*values)[1] / n;
    const float c = (*values)[2] / n;
    Matrix4 M;
    if (name == "Translate") {
        M3Ops::setTranslation(M, a, b, c);
        step.push_back(M);
    } else if (name == "Rotate") {
        M3Ops::setRotationX(M, a);
        step.push_back(M);
        M3Ops::setRotationY(M, b);
        step.push_back(M);
        M3Ops::setRotationZ(M, c);
        step.push_back(M);
    } else {
        M3Ops::setScale(M, a, b, c);
        step.push_back(M);
    }
    return true;
}

int32_t ExtrusionSteps::repeatCount(float n) {
    return Rounding::toInt32(n - 1.0f);
}

void ExtrusionSteps::setRunningProducts(Transformed3d& sweep, const std::vector<Matrix4>& step,
                                        int32_t r) {
    if (step.empty()) {
        return;
    }
    Matrix4 product = step.front();
    sweep.SetTransformation(product);
    for (int32_t repeat = 0; repeat <= r; ++repeat) {
        for (size_t k = repeat == 0 ? 1 : 0; k < step.size(); ++k) {
            M3Ops::multiplyAffine(product, product, step[k]);
            sweep.SetTransformation(product);
        }
    }
}
