#include "modelling/Tokens.h"

namespace {

std::string trim(const std::string& text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return "";
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

std::string Tokens::getNextToken(std::string& text, const std::string& delimiter) {
    const size_t p = delimiter.empty() ? std::string::npos : text.find(delimiter);
    if (p == std::string::npos) {
        std::string token = trim(text);
        text.clear();
        return token;
    }
    std::string token = trim(text.substr(0, p));
    text = trim(text.substr(p + delimiter.size()));
    return token;
}

std::string Tokens::stripNonPrintable(const std::string& text) {
    std::string printable = text;
    for (char& c : printable) {
        if (c < ' ' || c > '~') {
            c = ' ';
        }
    }
    return printable;
}

std::string Tokens::removeSubstring(const std::string& text, const std::string& part) {
    if (part.empty()) {
        return text;
    }
    std::string rest;
    size_t from = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, from)) {
        rest += text.substr(from, at - from);
        from = at + part.size();
    }
    return rest + text.substr(from);
}

void Tokens::tokenize(const std::string& text, const std::string& delimiter,
                      std::vector<std::string>& tokens) {
    std::string s = trim(stripNonPrintable(text));
    tokens.clear();
    while (!s.empty()) {
        tokens.push_back(getNextToken(s, delimiter));
    }
}
