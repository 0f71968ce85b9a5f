// A whole window whose ways to the outside are recorders, so that no dialog waits for an answer.
#pragma once

#include "desktop/before_commands.h"
#include "desktop/desktop_ports.h"
#include "desktop/main_window.h"
#include "desktop/menus.h"
#include "desktop/notice_bar.h"
#include "desktop/window_test.h"
#include "screen/ports.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class MainWindowTest : public WindowTest {
protected:
    MainWindowTest() { openWindow(); }

    /// A window in place of the one that is open, as at the program's start.
    void openWindow() {
        window.reset();
        if (!recorders_) recorders_ = ports;
        const Ports& recorders = *recorders_;
        window.emplace(appearance);
        const auto end = ports.end;
        ports = recorders;
        ports.end = [end, recorded = recorders.end] {
            recorded();
            end();
        };
        window->before().ask = [this](const WindowQuestion& question) {
            asked.push_back(question.text.toStdString());
            if (choices.empty()) return goOnAnswer;
            const WindowAnswer answer = choices.front();
            choices.pop_front();
            return answer;
        };
        window->show();
        window->activateWindow(); // shortcuts belong to the active window
        if (!QTest::qWaitForWindowActive(&*window)) throw std::runtime_error("the window is not active");
    }

    /// The sample card loaded through the window.
    void startInWindow() {
        putSampleCard();
        click(child<QAbstractButton>(*window, "Start"));
    }

    void pressKeys(const char* shortcut) { QTest::keySequence(&*window, QKeySequence{shortcut}); }
    void choose(const char* command) { window->menus().action(findCommand(command)->id)->trigger(); }

    /// The text of a line above the races; empty where there is none.
    std::string notice(const char* key) {
        return child<NoticeBar>(*window, "NoticeBar").textOf(key).toStdString();
    }

    std::vector<std::string> asked;   ///< questions of the window's own
    std::deque<WindowAnswer> choices; ///< their answers, first in first out; without one the command goes on
    std::optional<MainWindow> window;

private:
    std::optional<Ports> recorders_; ///< the window takes the ports over
};

} // namespace quillon
