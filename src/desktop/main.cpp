#include "app/start_up.h"
#include "desktop/main_window.h"
#include "desktop/window_size.h"
#include "desktop/working_folder.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QSettings>

namespace {

// The desktop's own where the program is installed, else the one in the program.
QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/quillon-%1.png").arg(size));
    return QIcon::fromTheme("quillon", icon);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    QApplication::setOrganizationName("Quillon"); // names the file of the window's settings
    QApplication::setApplicationName("Quillon");
    QApplication::setApplicationDisplayName("Quillon");
    QApplication::setApplicationVersion(QUILLON_VERSION);
    QApplication::setDesktopFileName("quillon");
    QApplication::setWindowIcon(applicationIcon());
    quillon::enterWorkingFolder();
    quillon::StartUp();

    quillon::Appearance appearance;
    const int theme = QSettings{}.value("theme", 0).toInt();
    if (theme == 1 || theme == 2) appearance.setTheme(static_cast<quillon::Theme>(theme));
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        appearance.setZoom(quillon::firstZoom(screen->availableGeometry().width()));
    quillon::MainWindow window{appearance};
    window.show();
    return QApplication::exec();
}
