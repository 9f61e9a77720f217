#include "qt/QtSettingsStore.h"

std::optional<QString> QtSettingsStore::text(const std::string& key) const {
    const QVariant value = settings_.value(QString::fromStdString(key));
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Bool:
        return value.toString();
    default:
        return std::nullopt;
    }
}

std::optional<std::string> QtSettingsStore::getString(const std::string& key) const {
    const auto value = text(key);
    return value ? std::optional<std::string>(value->toStdString()) : std::nullopt;
}

std::optional<int> QtSettingsStore::getInt(const std::string& key) const {
    const auto value = text(key);
    bool ok = false;
    const int number = value ? value->toInt(&ok) : 0;
    return ok ? std::optional<int>(number) : std::nullopt;
}

std::optional<bool> QtSettingsStore::getBool(const std::string& key) const {
    const auto value = text(key);
    if (value == QStringLiteral("true")) {
        return true;
    }
    if (value == QStringLiteral("false")) {
        return false;
    }
    return std::nullopt;
}

void QtSettingsStore::setString(const std::string& key, const std::string& value) {
    settings_.setValue(QString::fromStdString(key), QString::fromStdString(value));
}

void QtSettingsStore::setInt(const std::string& key, int value) {
    settings_.setValue(QString::fromStdString(key), value);
}

void QtSettingsStore::setBool(const std::string& key, bool value) {
    settings_.setValue(QString::fromStdString(key), value);
}

void QtSettingsStore::remove(const std::string& key) {
    settings_.remove(QString::fromStdString(key));
}
