#pragma once

#include "desk/shell/surroundings.h"
#include "desk/window/command_line.h"
#include "desk/window/main_window.h"
#include "desk/window/status_line.h"
#include "forms/acts.h"
#include "forms/form.h"
#include "tests/fakes/temp_folder.h"

#include <QAction>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace window {

/// A face whose user is a list of acts: each showing of a dialog takes the next one, and none left closes it.
class ScriptedFace : public forms::Screen {
  public:
    std::deque<std::function<void(forms::Form&)>> acts;
    std::vector<std::string> boxes;
    std::optional<std::string> file;  ///< what a file dialog answers

    void runModal(forms::Form& form) override {
        while (form.visible()) {
            if (acts.empty()) {
                forms::acts::closeBox(form);
                continue;
            }
            const auto act = acts.front();
            acts.pop_front();
            act(form);
        }
    }
    void hidden(forms::Form&) override {}
    void changed(forms::Form&, forms::Change) override {}
    void changed(forms::Control&, forms::Change) override {}
    forms::Answer messageBox(const forms::MessageDialog& box) override {
        boxes.push_back(box.text);
        return forms::Answer::Ok;
    }
    std::optional<std::string> fileDialog(const forms::FileDialog&, forms::FileDialogMode) override {
        return file;
    }
    void reportFailure(std::int32_t, const std::string& description) override {
        boxes.push_back(description);
    }
};

/// The window on a copy of the sample drawing, with settings and an install folder of its own.
class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        namespace fs = std::filesystem;
        fs::copy_file(fs::path(VORLANE_ROOT) / "samples/apartment.dxf", folder_.file("apartment.dxf"));
        shell::DeskOptions options;
        options.installFolder = folder_.file("install");
        options.resources = fs::path(VORLANE_ROOT) / "resources";
        options.regional = basic::Regional::english();
        settings_ = std::make_unique<QSettings>(QString::fromStdString(folder_.file("window.ini")),
                                                QSettings::IniFormat);
        const auto face = [this](QWidget&) {
            auto made = std::make_unique<ScriptedFace>();
            face_ = made.get();
            return made;
        };
        window_ = std::make_unique<MainWindow>(options, face, *settings_, Scheme::Dark);
        window_->resize(1400, 900);
        window_->show();
        window_->open(QString::fromStdString(folder_.file("apartment.dxf")));
    }

    drawing::Drawing& drawing() { return window_->session().drawing(); }
    void type(const QString& line) {
        window_->commandLine().type(line);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    /// Runs `act` as soon as a prompt waits: prompts run a loop of their own.
    void whenAsked(std::function<void()> act) {
        acts_.push_back(std::move(act));
        if (std::exchange(answers_, true)) return;
        QObject::connect(&window_->prompter(), &CanvasPrompter::asked, window_.get(), [this] {
            QTimer::singleShot(0, window_.get(), [this] {
                if (acts_.empty()) return window_->prompter().breakOff();
                const auto next = acts_.front();
                acts_.pop_front();
                next();
            });
        });
    }

    fakes::TempFolder folder_;
    std::unique_ptr<QSettings> settings_;
    ScriptedFace* face_ = nullptr;
    std::unique_ptr<MainWindow> window_;
    std::deque<std::function<void()>> acts_;
    bool answers_ = false;  ///< prompts are answered by the acts
};

}  // namespace window
