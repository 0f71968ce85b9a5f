#include "desktop/hand_over.h"

#include "core/failure.h"
#include "desktop/shown_text.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#ifdef Q_OS_WIN
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
#endif

namespace quillon {
namespace {

// The file's whole path, since another program may have another current folder. Empty for a bad name.
QString pathOf(const FilePlace& file) {
    QString path;
    attempt([&] { path = QFileInfo{pathOnDisk(file)}.absoluteFilePath(); });
    return path;
}

#ifndef Q_OS_WIN

// An editor that runs in a terminal would open none, or a window that a newcomer does not know how to leave.
bool isWindowedProgram(const QString& desktopFile) {
    QFile file{QStandardPaths::locate(QStandardPaths::ApplicationsLocation, desktopFile)};
    if (!file.open(QIODevice::ReadOnly)) return false;
    return !file.readAll().toLower().replace(" ", "").contains("\nterminal=true");
}

#endif

} // namespace

bool hasDesktop() {
    const QString platform = QGuiApplication::platformName();
    return platform != "offscreen" && platform != "minimal";
}

#ifdef Q_OS_WIN
QString findDesktopEditor() { return {}; }
#else
QString findDesktopEditor() {
    constexpr int longestWait = 1000; // milliseconds
    const QString asked = QStandardPaths::findExecutable("xdg-mime");
    if (asked.isEmpty()) return {};
    QProcess query;
    query.start(asked, {"query", "default", "text/plain"});
    if (!query.waitForFinished(longestWait)) {
        query.kill();
        query.waitForFinished(longestWait / 10);
        return {};
    }
    const QString editor = QString::fromUtf8(query.readAllStandardOutput()).trimmed();
    return isWindowedProgram(editor) ? editor : QString{};
}
#endif

bool showInDesktopEditor(const FilePlace& file) {
    const QString path = pathOf(file);
    if (!QFileInfo{path}.isFile()) return false;
#ifdef Q_OS_WIN
    return QProcess::startDetached("cmd.exe", {"/c", "Archives.bat"}, QDir::currentPath());
#else
    static const QString editor = findDesktopEditor(); // does not change while the program runs
    if (editor.isEmpty()) return false;
    const QString launcher = QStandardPaths::findExecutable("gtk-launch");
    if (!launcher.isEmpty() && QProcess::startDetached(launcher, {editor, path})) return true;
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    return !opener.isEmpty() && QProcess::startDetached(opener, {path});
#endif
}

bool openAddress(TextView address) {
    QString text = shown(address).trimmed();
    if (text.startsWith("www.", Qt::CaseInsensitive)) text.prepend("https://");
    const QUrl url{text, QUrl::TolerantMode};
    const bool isPage = url.scheme() == "http" || url.scheme() == "https";
    if (!url.isValid() || !(isPage ? !url.host().isEmpty() : url.isLocalFile())) {
        reportFault("\"" + Text{address.substr(0, 200)} + "\" is no address of a page");
        return false;
    }
    const bool opened = QDesktopServices::openUrl(url);
    if (!opened) reportFault("no browser opened " + Text{address.substr(0, 200)});
    return opened;
}

void startProgram(const Text& program) {
    const QString path = pathOf({Folder::working, program});
    const QFileInfo file{path};
    if (!file.isFile() || !file.isExecutable())
        return reportFault("the working folder has no program " + program);
    if (!QProcess::startDetached(path, {}, QDir::currentPath())) reportFault(program + " did not start");
}

void hideFile([[maybe_unused]] const FilePlace& file) {
#ifdef Q_OS_WIN
    const std::wstring path = QDir::toNativeSeparators(pathOf(file)).toStdWString();
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool hidden = attributes != INVALID_FILE_ATTRIBUTES &&
                        SetFileAttributesW(path.c_str(), attributes | FILE_ATTRIBUTE_HIDDEN);
    if (!hidden) reportFault(shownPath(file) + " can't be hidden");
#endif
}

} // namespace quillon
