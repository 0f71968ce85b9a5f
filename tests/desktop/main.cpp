#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true); // a user's own settings stay what they are
    QApplication application{argc, argv};
    QApplication::setOrganizationName("Quillon tests");
    QApplication::setApplicationName("quillon-tests");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
