#include "desktop/working_folder.h"

#include "app/start_up.h"
#include "core/files.h"
#include "core/journal.h"
#include "desktop/window_test.h"

#include <QDir>
#include <QStandardPaths>

namespace quillon {
namespace {

using WorkingFolderTest = WindowTest;

const std::string sampleTracks() { return fileContent({Folder::working, "TrackEditor.ini"}).value_or(""); }

TEST_F(WorkingFolderTest, AFolderIsLaidOutAtItsFirstUse) {
    const QString folder = QDir::currentPath() + "/data/Quillon";
    enterFolder(folder);
    EXPECT_EQ(QDir{folder}.canonicalPath(), QDir::current().canonicalPath());
    EXPECT_TRUE(exists("A Quillon PRO/TrackMaster ExE Files"));
    EXPECT_TRUE(exists("A Quillon PRO/Results"));
    QDir::setCurrent(SAMPLE_FOLDER);
    const std::string sample = sampleTracks();
    QDir::setCurrent(folder);
    EXPECT_FALSE(sample.empty());
    EXPECT_EQ(sample, sampleTracks());
}

TEST_F(WorkingFolderTest, AFirstStartHasNoFault) {
    enterFolder(QDir::currentPath() + "/data/Quillon");
    journal.clear();
    StartUp();
    EXPECT_EQ(0U, journal.count());
}

TEST_F(WorkingFolderTest, ATrackTableThatTheUserEditedStays) {
    put("TrackEditor.ini", "mine");
    enterFolder(QDir::currentPath());
    EXPECT_EQ("mine", contentOf("TrackEditor.ini"));
}

TEST_F(WorkingFolderTest, AFolderWithATrackTableInAnyCaseIsUsedAsItIs) {
    put("trackeditor.INI", "mine");
    const QString before = QDir::currentPath();
    enterWorkingFolder();
    EXPECT_EQ(before, QDir::currentPath());
    EXPECT_FALSE(exists("A Quillon PRO"));
}

TEST_F(WorkingFolderTest, WithoutATrackTableTheUsersOwnFolderIsUsed) {
    enterWorkingFolder();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    EXPECT_EQ(QDir{data + "/Quillon"}.canonicalPath(), QDir::current().canonicalPath());
    EXPECT_TRUE(exists("TrackEditor.ini"));
    EXPECT_TRUE(sourceFolderOnDisk().startsWith(QDir::currentPath()));
    QDir{data + "/Quillon"}.removeRecursively();
}

TEST_F(WorkingFolderTest, AFolderThatCanNotBeMadeLeavesTheCurrentOne) {
    put("file", "in the way");
    const QString before = QDir::currentPath();
    enterFolder(before + "/file/Quillon");
    EXPECT_EQ(before, QDir::currentPath());
}

} // namespace
} // namespace quillon
