// Disks that take nothing: each file that is not written is told in the bar with its path, the cause and what it means.
#include "card/race_card.h"
#include "day/changes.h"
#include "desktop/main_window_test.h"

#include <QDir>
#include <QScrollBar>

#include <csignal>
#include <filesystem>
#include <fstream>

#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;

const fs::path sheet = "A Quillon PRO/Selections/MVR_20260314.pms";
const fs::path results = "A Quillon PRO/Results/MVR_20260314.pmr";
const fs::path savedCard = "A Quillon PRO/Race Cards/MVR_20260314.pmd";

class FailedWritesTest : public MainWindowTest {
protected:
    void scratch(int entry) {
        answers = {"Yes"};
        click(child<QAbstractButton>(*window, QString{"ScratchButton%1"}.arg(entry)));
    }

    /// What the bar says of a file, without its path before it; empty where it says nothing.
    std::string told(const fs::path& file) {
        const std::string path = fs::absolute(file).string();
        const std::string text = notice(("write." + path).c_str());
        return text.starts_with(path) ? text.substr(path.size()) : text;
    }

    QWidget& bar() { return child<QWidget>(*window, "NoticeBar"); }
};

// --- A disk without room -----------------------------------------------------------------------------------

/// The working folder is a disk of its own, of four megabytes.
class FullDiskTest : public FailedWritesTest {
protected:
    FullDiskTest() {
        fs::create_directory("disk");
        isMounted = ::mount("tmpfs", "disk", "tmpfs", 0, "size=4m") == 0;
        if (isMounted) fs::current_path("disk");
    }
    ~FullDiskTest() override {
        window.reset();
        if (!isMounted) return;
        fs::current_path("..");
        ::umount2("disk", MNT_DETACH);
    }

    static void fill() {
        std::ofstream{"filler", std::ios::binary} << std::string(fs::space(".").available, 'x');
        ASSERT_EQ(0U, fs::space(".").available);
    }

    bool isMounted = false;
};

TEST_F(FullDiskTest, AScratchTellsThatSheetAndRefundAreNotWritten) {
    if (!isMounted) GTEST_SKIP() << "a disk can be mounted by the superuser alone";
    startInWindow();
    fill();
    scratch(2);
    EXPECT_EQ(" can't be written: no space left. So the selection sheet on disk is older than the screen.",
              told(sheet));
    EXPECT_EQ(" can't be written: no space left. So the results text on disk lacks what was to be added.",
              told(results));
    EXPECT_TRUE(bar().isVisible());
}

TEST_F(FullDiskTest, ASaveTellsThatTheCardIsNotSavedAndSavesOnceThereIsRoom) {
    if (!isMounted) GTEST_SKIP() << "a disk can be mounted by the superuser alone";
    startInWindow();
    scratch(2);
    fill();
    choose("Save");
    EXPECT_EQ(" can't be written: no space left. So the card is not saved.", told(savedCard));
    EXPECT_TRUE(window->isWindowModified());
    fs::remove("filler");
    choose("Save");
    EXPECT_TRUE(exists(savedCard));
    EXPECT_FALSE(window->isWindowModified());
}

/// No file may grow beyond a size, as a quota has it.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

TEST_F(FailedWritesTest, AFileThatMayNotGrowIsTold) {
    startInWindow();
    const FileSizeLimit limit{1000}; // the sheet of twelve races is longer
    scratch(2);
    EXPECT_EQ(
        " can't be written: no space left for a file of this size. So the selection sheet on disk is older "
        "than the screen.",
        told(sheet));
    EXPECT_EQ("", told(results)); // a line of some thirty characters
}

// --- A folder that is read-only ----------------------------------------------------------------------------

/// The superuser may write everywhere: for a while the test is somebody else.
class ReadOnly {
public:
    explicit ReadOnly(const fs::path& folder) : folder_{folder} {
        constexpr uid_t nobody = 65534;
        const fs::perms reading = fs::perms{0555};
        for (const auto& entry : fs::recursive_directory_iterator{folder})
            if (entry.is_directory()) fs::permissions(entry.path(), reading);
        fs::permissions(folder, reading);
        if (::geteuid() == 0 && ::seteuid(nobody) != 0) throw std::runtime_error("can't be nobody");
    }
    ~ReadOnly() {
        if (::getuid() == 0 && ::seteuid(0) != 0) std::terminate();
        const fs::perms all = fs::perms{0755};
        fs::permissions(folder_, all);
        for (const auto& entry : fs::recursive_directory_iterator{folder_})
            if (entry.is_directory()) fs::permissions(entry.path(), all);
    }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;

private:
    fs::path folder_;
};

TEST_F(FailedWritesTest, InAReadOnlyFolderStartLoadsTheCardAndTellsWhatIsNotWritten) {
    putSampleCard();
    const ReadOnly folder{fs::current_path()};
    click(child<QAbstractButton>(*window, "Start"));
    EXPECT_EQ(12, card.raceCount);
    // The folders of the sheets are not there yet, and can't be made.
    EXPECT_EQ(" can't be written: read-only. So the selection sheet on disk is older than the screen.",
              told("A Quillon PRO/Selections"));
    EXPECT_EQ(" can't be written: read-only. So the condensed program on disk is older than the card.",
              told("A Quillon PRO/Programs"));
    scratch(2);
    EXPECT_EQ(" can't be written: read-only. So the results text on disk lacks what was to be added.",
              told("A Quillon PRO/Results"));
    choose("Save");
    EXPECT_EQ(" can't be written: read-only. So the card is not saved.", told("A Quillon PRO/Race Cards"));
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(FailedWritesTest, ManyLinesLeaveTheRaceInSightAndAreReadAtOnce) {
    putSampleCard();
    window->resize(1083, 747);
    const ReadOnly folder{fs::current_path()};
    click(child<QAbstractButton>(*window, "Start"));
    QApplication::processEvents();
    const auto lines = bar().findChildren<QWidget*>("Notice");
    ASSERT_GT(lines.size(), 4);
    EXPECT_EQ(747, window->height());
    EXPECT_LT(bar().height(), 150);
    const auto isInSight = [](const QWidget* line) { return !line->visibleRegion().isEmpty(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInSight(lines.back()) && !isInSight(lines.front()); }))
        << "the newest stands first";
    auto& all = child<QAbstractButton>(*window, "NoticeCloseAll");
    EXPECT_EQ("OK to All " + std::to_string(lines.size()), all.text().toStdString());
    click(all);
    EXPECT_FALSE(bar().isVisible());
}

} // namespace
} // namespace quillon
