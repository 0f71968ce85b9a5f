#include "app/start_up.h"
#include "desktop/main_window.h"
#include "desktop/working_folder.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QApplication::setOrganizationName("Quillon"); // names the file of the window's settings
    QApplication::setApplicationName("Quillon");
    QApplication::setApplicationDisplayName("Quillon");
    QApplication::setApplicationVersion(QUILLON_VERSION);
    QApplication::setDesktopFileName("quillon");
    quillon::enterWorkingFolder();
    quillon::StartUp();

    quillon::Appearance appearance;
    const int theme = QSettings{}.value("theme", 0).toInt();
    if (theme == 1 || theme == 2) appearance.setTheme(static_cast<quillon::Theme>(theme));
    quillon::MainWindow window{appearance};
    window.show();
    return QApplication::exec();
}
