#include "app/EventGuard.h"
#include "app/frmMouseSensivity.h"
#include "app/frmSplash.h"
#include "app/frmTolvane.h"
#include "io/PosixFileSystem.h"
#include "macro/MacroFile.h"
#include "macro/MacroPlayer.h"
#include "macro/MacroRecorder.h"
#include "macro/MacroWriter.h"
#include "macro/MessageText.h"
#include "modelling/frmAdditionalExtrusions.h"
#include "modelling/frmExtrude.h"
#include "modelling/frmFaceProperty.h"
#include "modelling/frmPointIndexSelect.h"
#include "modelling/frmSolidProperty.h"
#include "qt/CommandLine.h"
#include "qt/ExportImageDialogView.h"
#include "qt/QtModalHost.h"
#include "qt/QtPrompts.h"
#include "qt/QtSettingsStore.h"
#include "qt/frmAdditionalExtrusionsView.h"
#include "qt/frmExtrudeView.h"
#include "qt/frmFacePropertyView.h"
#include "qt/frmMouseSensivityView.h"
#include "qt/frmOrientationView.h"
#include "qt/frmPointIndexSelectView.h"
#include "qt/frmProfilePropertyView.h"
#include "qt/frmSolidPropertyView.h"
#include "qt/frmSplashView.h"
#include "qt/frmTolvaneView.h"
#include "qt/frmWorkPlaneParametricView.h"
#include "qt/frmWorkPlanePropertyView.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <optional>
#include <system_error>

namespace {

// How long a replay waits between two actions of the window, so that one can follow it.
constexpr int replayStepMs = 10;

void registerViews(QtModalHost& dialogs) {
    dialogs.registerView<frmMouseSensivity, frmMouseSensivityView>();
    dialogs.registerView<ExportImageDialog, ExportImageDialogView>();
    dialogs.registerView<frmWorkPlaneParametric, frmWorkPlaneParametricView>();
    dialogs.registerView<frmWorkPlaneProperty, frmWorkPlanePropertyView>();
    dialogs.registerView<frmOrientation, frmOrientationView>();
    dialogs.registerView<frmProfileProperty, frmProfilePropertyView>();
    dialogs.registerView<frmExtrude, frmExtrudeView>();
    dialogs.registerView<frmAdditionalExtrusions, frmAdditionalExtrusionsView>();
    dialogs.registerView<frmFaceProperty, frmFacePropertyView>();
    dialogs.registerView<frmPointIndexSelect, frmPointIndexSelectView>();
    dialogs.registerView<frmSolidProperty, frmSolidPropertyView>();
}

// A failure before the window opens: a message on standard error and in a box.
int fail(const std::string& message) {
    std::fprintf(stderr, "korvan: %s\n", MessageText::oneLine(message).c_str());
    QMessageBox::critical(nullptr, "Korvan", QString::fromStdString(message));
    return 1;
}

// The editor as the user meets it: the splash plays first and shows the main window when
// it is done, and then opens the file named, if any. With a recorder, everything the user
// does is written to its macro, from the start-up state: a recording neither reads nor
// writes the settings, so that it plays back alike anywhere.
int runEditor(MacroRecorder* recorder, QtModalHost& dialogs, const std::string& file) {
    ModalHost& host = recorder != nullptr ? static_cast<ModalHost&>(*recorder) : dialogs;
    frmTolvane form(host);
    frmTolvaneView window(form);
    QtPrompts prompts(&window);
    installPrompts(&prompts);
    std::optional<QtSettingsStore> settings;
    if (recorder != nullptr) {
        recorder->attach(form, window, window.fileChooser(), window.colorChooser(), prompts);
    } else {
        window.attachSettings(settings.emplace());
    }
    frmSplash splashForm;
    frmSplashView splash(splashForm);
    QObject::connect(&splash, &frmSplashView::finished, &window, [&window, &form, &file] {
        window.show();
        if (!file.empty()) {
            EventGuard::run([&] { form.openFile(file); });
        }
    });
    splash.show();

    const int status = QApplication::exec();
    installPrompts(nullptr);
    return status;
}

// Plays the macro in the editor's window, one action of the window at a time, and leaves
// the window open at the end; a line that does not fit stops the replay with a message.
int replay(const std::string& path) {
    std::optional<MacroFile> macro;
    try {
        macro.emplace(MacroFile::open(PosixFileSystem::instance(), path));
    } catch (const std::system_error& error) {
        return fail("cannot open the macro " + path + ": " + MessageText::reason(error.code()));
    }
    MacroPlayer player(*macro);
    frmTolvane form(player);
    frmTolvaneView window(form);
    // What the macro does is all that happens: a drop would open a file it does not name.
    window.setAcceptDrops(false);
    player.attach(form, &window);
    player.setResizer([&window](int width, int height) { window.setClientSize(width, height); });
    installPrompts(&player);

    std::function<void()> next = [&] {
        try {
            if (player.step()) {
                QTimer::singleShot(replayStepMs, &window, next);
                return;
            }
            std::fprintf(stderr, "korvan: replayed %s (%ld actions)\n",
                         MessageText::oneLine(path).c_str(), player.played());
        } catch (const MacroPlayer::Error& error) {
            const std::string message = path + " " + error.what();
            std::fprintf(stderr, "korvan: %s\n", MessageText::oneLine(message).c_str());
            QMessageBox::critical(&window, "Replay stopped", QString::fromStdString(message));
        }
    };
    window.show();
    QTimer::singleShot(replayStepMs, &window, next);
    const int status = QApplication::exec();
    installPrompts(nullptr);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("korvan");
    QApplication::setApplicationVersion(KORVAN_VERSION);
    const CommandLine line = CommandLine::parse(QApplication::arguments());
    if (line.action == CommandLine::Action::Print) {
        std::fputs(line.text.c_str(), stdout);
        return 0;
    }
    if (line.action == CommandLine::Action::Fail) {
        return fail(line.text);
    }
    QtModalHost dialogs;
    registerViews(dialogs);
    if (!line.replay.empty()) {
        return replay(line.replay);
    }
    if (line.record.empty()) {
        return runEditor(nullptr, dialogs, line.file);
    }
    std::optional<MacroWriter> writer;
    try {
        writer.emplace(MacroWriter::create(PosixFileSystem::instance(), line.record));
    } catch (const std::system_error& error) {
        return fail("cannot write the macro " + line.record + ": " +
                    MessageText::reason(error.code()));
    }
    MacroRecorder recorder(*writer, dialogs);
    return runEditor(&recorder, dialogs, line.file);
}
