// A whole window whose ways to the outside are recorders, so that no dialog waits for an answer.
#pragma once

#include "desktop/desktop_ports.h"
#include "desktop/main_window.h"
#include "desktop/menus.h"
#include "desktop/window_test.h"
#include "screen/ports.h"

#include <optional>

namespace quillon {

class MainWindowTest : public WindowTest {
protected:
    MainWindowTest() {
        const Ports recorders = ports;
        window.emplace(appearance);
        const auto end = ports.end;
        ports = recorders;
        ports.end = [end, recorded = recorders.end] {
            recorded();
            end();
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

    std::optional<MainWindow> window;
};

} // namespace quillon
