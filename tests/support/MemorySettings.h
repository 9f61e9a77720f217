#pragma once

#include "platform/SettingsStore.h"

#include <map>
#include <string>
#include <variant>

// Settings in memory, each value of the type it was stored as, so that a test can store one
// of the wrong type, as a foreign or damaged settings file would hold it.
class MemorySettings : public SettingsStore {
public:
    using Value = std::variant<std::string, int, bool>;

    std::optional<std::string> getString(const std::string& key) const override {
        return get<std::string>(key);
    }
    std::optional<int> getInt(const std::string& key) const override { return get<int>(key); }
    std::optional<bool> getBool(const std::string& key) const override { return get<bool>(key); }
    void setString(const std::string& key, const std::string& value) override {
        values[key] = value;
    }
    void setInt(const std::string& key, int value) override { values[key] = value; }
    void setBool(const std::string& key, bool value) override { values[key] = value; }
    void remove(const std::string& key) override { values.erase(key); }

    std::map<std::string, Value> values;

private:
    template <class T> std::optional<T> get(const std::string& key) const {
        const auto found = values.find(key);
        if (found == values.end() || !std::holds_alternative<T>(found->second)) {
            return std::nullopt;
        }
        return std::get<T>(found->second);
    }
};
