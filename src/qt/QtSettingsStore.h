#pragma once

#include "platform/SettingsStore.h"

#include <QSettings>

// The settings as QSettings keeps them for organisation and application "Korvan" (on Linux
// ~/.config/Korvan/Korvan.conf). A value is read only as the type asked for: text that is not
// a whole number is no number, a bool is "true" or "false", and a list or a value of some
// other type is nothing at all.
class QtSettingsStore : public SettingsStore {
public:
    QtSettingsStore() : settings_("Korvan", "Korvan") {}

    std::optional<std::string> getString(const std::string& key) const override;
    std::optional<int> getInt(const std::string& key) const override;
    std::optional<bool> getBool(const std::string& key) const override;
    void setString(const std::string& key, const std::string& value) override;
    void setInt(const std::string& key, int value) override;
    void setBool(const std::string& key, bool value) override;
    void remove(const std::string& key) override;

private:
    // The value as text when it is a single text, a number or a bool; nothing otherwise.
    std::optional<QString> text(const std::string& key) const;

    QSettings settings_;
};
