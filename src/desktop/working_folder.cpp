#include "desktop/working_folder.h"

#include "core/failure.h"
#include "core/files.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <array>
#include <system_error>

namespace quillon {
namespace {

constexpr const char* trackTable = "TrackEditor.ini";
constexpr const char* cardTakenOver = "CrossOver.ini"; // written by other programs
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
    // Empty it says what a missing one says, but is no fault of a first start.
    const FilePlace takenOver{Folder::working, cardTakenOver};
    if (!fileContent(takenOver)) attempt([&] { writeFile(takenOver, {}); });
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
    const std::filesystem::path place = folderOnDisk(Folder::sourceTables);
    std::error_code error; // a working folder that is gone has no path
    const std::filesystem::path whole = std::filesystem::absolute(place, error);
    const auto folder = (error ? place : whole).u8string();
    const auto* bytes = reinterpret_cast<const char*>(folder.data());
    return QDir::toNativeSeparators(QString::fromUtf8(bytes, static_cast<qsizetype>(folder.size())));
}

} // namespace quillon
