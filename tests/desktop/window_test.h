// The fixtures of the window's tests: real widgets on the offscreen platform, clicked and typed into.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "support/card_test.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

namespace quillon {

/// A started program on an empty folder, with recorders for ports.
class WindowTest : public CardTest {
protected:
    WindowTest();

    /// Copies the sample's tables and settings into the working folder.
    static void putSampleCard();

    /// The sample card loaded and rated, race 1 on show.
    void startSampleCard();

    /// A child by its object name; fails the test where it is missing.
    template <typename Widget>
    static Widget& child(QWidget& parent, const QString& name) {
        auto* found = parent.findChild<Widget*>(name);
        if (!found) throw std::runtime_error("no widget " + name.toStdString());
        return *found;
    }

    static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

    Appearance appearance;
    CommandRunner runner;
};

} // namespace quillon
