#pragma once

#include "platform/FileChooser.h"

#include <string>

class QWidget;

// The file dialog as a QFileDialog, modal to the given parent. It opens in the program's own
// folder every time, whatever folder was used last, and accepts names of files that do not
// exist yet without asking, because saving goes through it too.
class QtFileChooser : public FileChooser {
public:
    explicit QtFileChooser(QWidget* parent = nullptr) : parent_(parent) {}

    std::string chooseFile(const std::string& title, const std::string& filter) override;
    // The next call answers path without showing the dialog; empty takes it back.
    void answerNext(std::string path) { next_ = std::move(path); }

private:
    QWidget* parent_;
    std::string next_;
};
