#pragma once

#include "platform/SettingsStore.h"

#include <map>
#include <variant>

// Settings in memory, each value of the type it was stored as, so that a test can store one
// of the wrong type, as a damaged or foreign settings file would hold it.
struct MemorySettings : SettingsStore {
    std::map<std::string, std::variant<std::string, int, bool>> values;

    template <class T> std::optional<T> get(const std::string& key) const {
        const auto found = values.find(key);
        return found != values.end() && std::holds_alternative<T>(found->second)
                   ? std::optional<T>(std::get<T>(found->second))
                   : std::nullopt;
    }
    std::optional<std::string> getString(const std::string& k) const override {
        return get<std::string>(k);
    }
    std::optional<int> getInt(const std::string& k) const override { return get<int>(k); }
    std::optional<bool> getBool(const std::string& k) const override { return get<bool>(k); }
    void setString(const std::string& k, const std::string& v) override { values[k] = v; }
    void setInt(const std::string& k, int v) override { values[k] = v; }
    void setBool(const std::string& k, bool v) override { values[k] = v; }
    void remove(const std::string& k) override { values.erase(k); }
};
