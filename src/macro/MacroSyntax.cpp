#include "macro/MacroSyntax.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>
#include <system_error>
#include <utility>

namespace {

using Error = MacroSyntax::Error;
using Verb = ControlAction::Verb;

// The words a verb of the dialog line is written as, in the order of ControlAction::Verb.
constexpr std::string_view dialogVerbs[] = {"type", "check", "choose", "pick", "scroll", "press"};

// The words of a message line's answers.
constexpr std::pair<const char*, MessageAnswer> answerWords[] = {
    {"ok", MessageAnswer::Ok},           {"yes", MessageAnswer::Yes},
    {"no", MessageAnswer::No},           {"save", MessageAnswer::Save},
    {"discard", MessageAnswer::Discard}, {"cancel", MessageAnswer::Cancel}};

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            out += c;
        }
    }
    return out + "\"";
}

// A name as it stands when it needs no quotes, else quoted.
std::string word(const std::string& name) {
    const bool plain = !name.empty() && name.find_first_of(" \t\"\\#\r\n") == std::string::npos;
    return plain ? name : quoted(name);
}

std::string number(float value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string joined(const std::vector<std::string>& texts) {
    std::string out;
    for (const std::string& text : texts) {
        out += " " + quoted(text);
    }
    return out;
}

// A word of a line; quoted words are text, so "cancel" in quotes is not the word cancel.
struct Word {
    std::string text;
    bool quoted = false;
};

std::vector<Word> split(std::string_view line) {
    std::vector<Word> words;
    size_t i = 0;
    while (true) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) {
            ++i;
        }
        if (i == line.size()) {
            return words;
        }
        std::string current;
        const bool quotedWord = line[i] == '"';
        if (quotedWord) {
            ++i;
            while (true) {
                if (i == line.size()) {
                    throw Error("a quoted text has no closing quote");
                }
                const char c = line[i++];
                if (c == '"') {
                    break;
                }
                if (c != '\\') {
                    current += c;
                    continue;
                }
                if (i == line.size()) {
                    throw Error("a quoted text has no closing quote");
                }
                const char escaped = line[i++];
                switch (escaped) {
                case 'n':
                    current += '\n';
                    break;
                case 'r':
                    current += '\r';
                    break;
                case 't':
                    current += '\t';
                    break;
                case '"':
                case '\\':
                    current += escaped;
                    break;
                default:
                    throw Error(std::string("unknown escape \\") + escaped);
                }
            }
            if (i < line.size() && line[i] != ' ' && line[i] != '\t') {
                throw Error("a quoted text runs into the next word");
            }
        } else {
            while (i < line.size() && line[i] != ' ' && line[i] != '\t') {
                if (line[i] == '"') {
                    throw Error("a quote in the middle of a word");
                }
                current += line[i++];
            }
        }
        words.push_back({std::move(current), quotedWord});
    }
}

// Reads the words of one line in order, naming what each should be when it is not.
class Words {
public:
    explicit Words(std::vector<Word> words) : words_(std::move(words)) {}

    const std::string& text(const char* what) {
        if (next_ == words_.size()) {
            throw Error(std::string("missing ") + what);
        }
        return words_[next_++].text;
    }
    // Whether the next word is this bare word (not quoted); takes it if so.
    bool takeBare(std::string_view bare) {
        if (next_ < words_.size() && !words_[next_].quoted && words_[next_].text == bare) {
            ++next_;
            return true;
        }
        return false;
    }
    int integer(const char* what, int low = std::numeric_limits<int>::min(),
                int high = std::numeric_limits<int>::max()) {
        const std::string& w = text(what);
        int value = 0;
        const auto result = std::from_chars(w.data(), w.data() + w.size(), value);
        if (result.ec != std::errc() || result.ptr != w.data() + w.size() || value < low ||
            value > high) {
            throw Error(std::string("bad ") + what + " " + w);
        }
        return value;
    }
    float decimal(const char* what) {
        const std::string& w = text(what);
        float value = 0;
        const auto result = std::from_chars(w.data(), w.data() + w.size(), value);
        if (result.ec != std::errc() || result.ptr != w.data() + w.size() ||
            !std::isfinite(value)) {
            throw Error(std::string("bad ") + what + " " + w);
        }
        return value;
    }
    bool atEnd() const { return next_ == words_.size(); }
    std::vector<std::string> rest() {
        std::vector<std::string> out;
        while (next_ < words_.size()) {
            out.push_back(words_[next_++].text);
        }
        return out;
    }
    void end() {
        if (!atEnd()) {
            throw Error("unexpected " + words_[next_].text);
        }
    }

private:
    std::vector<Word> words_;
    size_t next_ = 0;
};

MacroAction parseDialog(Words& words) {
    macro::Dialog dialog;
    dialog.caption = words.text("dialog caption");
    const std::string& verb = words.text("dialog action");
    size_t index = 0;
    while (index < std::size(dialogVerbs) && dialogVerbs[index] != verb) {
        ++index;
    }
    if (index == std::size(dialogVerbs)) {
        throw Error("unknown dialog action " + verb);
    }
    ControlAction& action = dialog.action;
    action.verb = static_cast<Verb>(index);
    action.control = words.text("control name");
    switch (action.verb) {
    case Verb::Type:
        action.text = words.text("text");
        break;
    case Verb::Check: {
        const std::string& state = words.text("on or off");
        if (state != "on" && state != "off") {
            throw Error("bad check state " + state + " (on or off)");
        }
        action.value = state == "on" ? 1 : 0;
        break;
    }
    case Verb::Pick:
        action.value = words.integer("list line", -1);
        break;
    case Verb::Scroll:
        action.value = words.integer("scroll value");
        break;
    case Verb::Choose:
    case Verb::Press:
        break;
    }
    return dialog;
}

MacroAction parseMouse(Words& words, bool press) {
    macro::Mouse mouse;
    mouse.press = press;
    mouse.viewport = words.integer("viewport", 0, 3);
    mouse.button = words.integer("button", 0, 7);
    mouse.shift = words.integer("shift state", 0, 7);
    mouse.x = words.decimal("x");
    mouse.y = words.decimal("y");
    return mouse;
}

// The kinds of item an expect line counts; the first four may also be counted selected.
constexpr std::string_view countedItems[] = {"solids", "workplanes", "profiles", "faces", "points"};

MacroAction parseExpect(Words& words) {
    using Kind = macro::Expect::Kind;
    macro::Expect expect;
    const std::string what = words.text("message, tree, count or selected");
    if (what == "message") {
        expect.texts = {words.text("message text")};
        return expect;
    }
    if (what == "tree") {
        expect.kind = Kind::Tree;
        expect.texts = words.rest();
        if (expect.texts.empty()) {
            throw Error("missing node texts");
        }
        return expect;
    }
    if (what != "count" && what != "selected") {
        throw Error("bad expect " + what + " (message, tree, count or selected)");
    }
    expect.kind = what == "count" ? Kind::Count : Kind::Selected;
    expect.items = words.text("items");
    const auto items =
        expect.kind == Kind::Count ? std::span(countedItems) : std::span(countedItems).first(4);
    if (std::find(items.begin(), items.end(), expect.items) == items.end()) {
        throw Error("bad items " + expect.items +
                    (expect.kind == Kind::Count ? " (solids, workplanes, profiles, faces or points)"
                                                : " (solids, workplanes, profiles or faces)"));
    }
    expect.count = words.integer("count", 0);
    return expect;
}

MacroAction parseWords(Words& words) {
    const std::string verb = words.text("action");
    if (verb == "resize") {
        const int width = words.integer("width", 0, 100000);
        return macro::Resize{width, words.integer("height", 0, 100000)};
    }
    if (verb == "menu" || verb == "popup") {
        macro::Menu menu{verb == "popup", words.rest()};
        if (menu.path.empty()) {
            throw Error("missing menu captions");
        }
        return menu;
    }
    if (verb == "key") {
        return macro::Key{words.integer("key code")};
    }
    if (verb == "mouse-press" || verb == "mouse-move") {
        return parseMouse(words, verb == "mouse-press");
    }
    if (verb == "tree-click") {
        const std::string by = words.text("key or text");
        if (by == "key") {
            return macro::TreeClick{words.text("node key"), {}};
        }
        if (by != "text") {
            throw Error("bad tree-click " + by + " (key or text)");
        }
        macro::TreeClick click{{}, words.rest()};
        if (click.textPath.empty()) {
            throw Error("missing node texts");
        }
        return click;
    }
    if (verb == "tree-key") {
        return macro::TreeKey{words.integer("key code")};
    }
    if (verb == "dialog") {
        return parseDialog(words);
    }
    if (verb == "expect") {
        return parseExpect(words);
    }
    if (verb == "message") {
        const std::string& answer = words.text("answer");
        for (const auto& [word, value] : answerWords) {
            if (answer == word) {
                return macro::Message{value};
            }
        }
        throw Error("bad message answer " + answer + " (ok, yes, no, save, discard or cancel)");
    }
    if (verb == "input") {
        if (words.takeBare("cancel")) {
            return macro::Input{std::nullopt};
        }
        return macro::Input{words.text("text or cancel")};
    }
    if (verb == "file") {
        if (words.takeBare("cancel")) {
            return macro::File{};
        }
        const std::string& path = words.text("path or cancel");
        if (path.empty()) {
            throw Error("empty path (write cancel for a cancelled file dialog)");
        }
        return macro::File{path};
    }
    if (verb == "color") {
        if (words.takeBare("cancel")) {
            return macro::Color{-1};
        }
        const std::string& w = words.text("colour or cancel");
        int32_t color = 0;
        const auto result = std::from_chars(w.data(), w.data() + w.size(), color);
        if (result.ec != std::errc() || result.ptr != w.data() + w.size() || color < 0 ||
            color > 0xFFFFFF) {
            throw Error("bad colour " + w);
        }
        return macro::Color{color};
    }
    throw Error("unknown action " + verb);
}

struct Formatter {
    std::string operator()(const macro::Resize& a) const {
        return "resize " + std::to_string(a.width) + " " + std::to_string(a.height);
    }
    std::string operator()(const macro::Menu& a) const {
        return (a.popup ? "popup" : "menu") + joined(a.path);
    }
    std::string operator()(const macro::Key& a) const { return "key " + std::to_string(a.code); }
    std::string operator()(const macro::Mouse& a) const {
        return std::string(a.press ? "mouse-press " : "mouse-move ") + std::to_string(a.viewport) +
               " " + std::to_string(a.button) + " " + std::to_string(a.shift) + " " + number(a.x) +
               " " + number(a.y);
    }
    std::string operator()(const macro::TreeClick& a) const {
        return a.key.empty() ? "tree-click text" + joined(a.textPath)
                             : "tree-click key " + quoted(a.key);
    }
    std::string operator()(const macro::TreeKey& a) const {
        return "tree-key " + std::to_string(a.code);
    }
    std::string operator()(const macro::Dialog& a) const {
        const ControlAction& c = a.action;
        std::string line = "dialog " + quoted(a.caption) + " " +
                           std::string(dialogVerbs[static_cast<size_t>(c.verb)]) + " " +
                           word(c.control);
        switch (c.verb) {
        case Verb::Type:
            return line + " " + quoted(c.text);
        case Verb::Check:
            return line + (c.value != 0 ? " on" : " off");
        case Verb::Pick:
        case Verb::Scroll:
            return line + " " + std::to_string(c.value);
        case Verb::Choose:
        case Verb::Press:
            break;
        }
        return line;
    }
    std::string operator()(const macro::Message& a) const {
        for (const auto& [word, value] : answerWords) {
            if (a.answer == value) {
                return std::string("message ") + word;
            }
        }
        return "message ok";
    }
    std::string operator()(const macro::Input& a) const {
        return a.text ? "input " + quoted(*a.text) : "input cancel";
    }
    std::string operator()(const macro::File& a) const {
        return a.path.empty() ? "file cancel" : "file " + quoted(a.path);
    }
    std::string operator()(const macro::Color& a) const {
        return a.color < 0 ? "color cancel" : "color " + std::to_string(a.color);
    }
    std::string operator()(const macro::Expect& a) const {
        switch (a.kind) {
        case macro::Expect::Kind::Message:
            return "expect message" + joined(a.texts);
        case macro::Expect::Kind::Tree:
            return "expect tree" + joined(a.texts);
        case macro::Expect::Kind::Count:
            return "expect count " + a.items + " " + std::to_string(a.count);
        case macro::Expect::Kind::Selected:
            break;
        }
        return "expect selected " + a.items + " " + std::to_string(a.count);
    }
};

} // namespace

std::string MacroSyntax::format(const MacroAction& action) {
    return std::visit(Formatter{}, action);
}

std::optional<MacroAction> MacroSyntax::parse(std::string_view line) {
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    const size_t first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos || line[first] == '#') {
        return std::nullopt;
    }
    Words words(split(line));
    MacroAction action = parseWords(words);
    words.end();
    return action;
}
