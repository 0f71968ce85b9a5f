#include "desktop/working_folder.h"

#include "core/failure.h"
#include "core/files.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <array>

namespace quillon {
namespace {

constexpr const char* trackTable = "TrackEditor.ini";
constexpr std::array fixedFolders{
    Folder::sourceTables, Folder::raceCards, Folder::archives, Folder::results, Folder::selections,
    Folder::selections2,  Folder::programs,  Folder::entries,  Folder::drivers,
};

bool hasTrackTable() { return fileContent({Folder::working, trackTable}).has_value(); }

void LayOutFolders() {
    const Step step{"LayOutFolders"};
    for (const Folder folder : fixedFolders) attempt([&] { makeFolder(folder); });
    if (hasTrackTable()) return;
    QFile sample{":/samples/TrackEditor.ini"};
    if (!sample.open(QIODevice::ReadOnly)) fail("the sample track table is not in the program");
    writeFile({Folder::working, trackTable}, sample.readAll().toStdString());
}

} // namespace

void enterFolder(const QString& folder) {
    QDir{}.mkpath(folder);
    if (QDir::setCurrent(folder)) attempt(LayOutFolders);
}

void enterWorkingFolder() {
    if (hasTrackTable()) return;
    enterFolder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Quillon");
}

QString sourceFolderOnDisk() {
    const auto folder = std::filesystem::absolute(folderOnDisk(Folder::sourceTables)).u8string();
    const auto* bytes = reinterpret_cast<const char*>(folder.data());
    return QDir::toNativeSeparators(QString::fromUtf8(bytes, static_cast<qsizetype>(folder.size())));
}

} // namespace quillon
