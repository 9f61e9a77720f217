#pragma once

#include <optional>
#include <string>

// Values kept between runs of the program, by key ("View1/Projection"). A value that is
// missing, or stored as something that does not read as the asked type (a settings file
// written by hand, by another program, or damaged), comes back as nothing; what a value
// may be beyond its type is for the caller to check.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::optional<std::string> getString(const std::string& key) const = 0;
    virtual std::optional<int> getInt(const std::string& key) const = 0;
    virtual std::optional<bool> getBool(const std::string& key) const = 0;
    virtual void setString(const std::string& key, const std::string& value) = 0;
    virtual void setInt(const std::string& key, int value) = 0;
    virtual void setBool(const std::string& key, bool value) = 0;
    virtual void remove(const std::string& key) = 0;
};
