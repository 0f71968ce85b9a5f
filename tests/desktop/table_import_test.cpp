// Another day's tables, brought to the window.
#include "desktop/table_import.h"

#include "desktop/dialog_answers.h"
#include "desktop/main_window_test.h"
#include "import/card_in_text.h"
#include "import/made_archives.h"
#include "import/placing.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

#include <filesystem>

namespace quillon {
namespace {

namespace fs = std::filesystem;

const fs::path sourceFolder = "A Quillon PRO/TrackMaster ExE Files";
const QString refused = "Nothing was imported. ";

struct TableImportTest : MainWindowTest {
    /// Each question, and whether it was answered by Import.
    struct Asked {
        QString text{};
        QString more{};
    };

    /// Presses this button of the question, and notes what it said.
    auto answer(const char* button) {
        return [this, button](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            if (!box) return;
            questions.push_back({box->text(), box->informativeText()});
            for (QAbstractButton* found : box->buttons())
                if (found->text().remove('&') == button) return found->click();
            ADD_FAILURE() << "no button " << button;
        };
    }

    static Text zipOfSmallCard(const std::map<TextView, Text>& changed = {}) {
        std::vector<MadeMember> members;
        for (const VendorTable& table : smallCard(changed))
            members.push_back({"MVR/" + Text{table.name}, table.content});
        return madeZip(members);
    }

    /// Whether the window took it, with what the drop makes of it done.
    bool drop(const QList<QUrl>& urls, QWidget& onto) {
        QMimeData data;
        data.setUrls(urls);
        data.setText("a path"); // as file managers give it too
        QDragEnterEvent enter{{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&onto, &enter);
        QDropEvent event{{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&onto, &event);
        QApplication::processEvents();
        return enter.isAccepted();
    }
    bool drop(const char* path) {
        return drop({QUrl::fromLocalFile(QString::fromStdString(fs::absolute(path).string()))}, *window);
    }

    QString refusal() { return QString::fromStdString(notice("import.refusal")); }
    QString done() { return QString::fromStdString(notice("import")); }
    bool ticked(const char* table) { return child<QLabel>(*window, table).text().startsWith(QChar{0x2713}); }

    std::vector<Asked> questions;
};

TEST_F(TableImportTest, ADroppedFolderIsConfirmedTakenAndStarted) {
    fs::copy(SAMPLE_FOLDER "/A Quillon PRO", "fetched", fs::copy_options::recursive);
    fs::copy(SAMPLE_FOLDER "/TrackEditor.ini", "TrackEditor.ini");
    const DialogAnswers answers{answer("Import")};
    EXPECT_TRUE(drop("fetched"));
    ASSERT_EQ(1u, questions.size());
    EXPECT_EQ("Import the tables of MVR, Saturday 14 March 2026, 12 races?", questions[0].text);
    EXPECT_EQ("", questions[0].more); // nothing is missing, nothing is replaced
    for (const char* table : {"RACESHR.DBF", "HORSEHR.DBF", "RUNLINHR.DBF", "DRIVERHR.DBF", "TRAINRHR.DBF"})
        EXPECT_TRUE(ticked(table)) << table;
    EXPECT_EQ("MVR, Saturday 14 March 2026, 12 races: the tables are in place.", done());
    QAbstractButton* start = nullptr;
    for (auto* button : child<QWidget>(*window, "NoticeBar").findChildren<QAbstractButton*>())
        if (button->text().remove('&') == "Start") start = button;
    ASSERT_TRUE(start);
    start->click();
    EXPECT_EQ(12, card.raceCount);
    EXPECT_EQ("", done());
}

TEST_F(TableImportTest, ADroppedZipTakesThePlaceOfTheOldTablesWhichAreKept) {
    putSampleCard();
    put("next.zip", zipOfSmallCard({{trainerTable, ""}}));
    const DialogAnswers answers{answer("Import")};
    drop("next.zip");
    ASSERT_EQ(1u, questions.size());
    EXPECT_EQ("Import the tables of MVR, Saturday 14 March 2026, 2 races?", questions[0].text);
    EXPECT_EQ("TRAINRHR.DBF is not among them.\n"
              "The tables of MVR, Saturday 14 March 2026, 12 races that are there now are kept as an archive "
              "in the "
              "folder Imported.",
              questions[0].more);
    EXPECT_TRUE(areInPlace(smallCard({{trainerTable, ""}})));
    EXPECT_FALSE(fs::is_empty("A Quillon PRO/Imported"));
}

TEST_F(TableImportTest, AProgramIsReadAndNotRun) {
    put("MVR0314.exe", behindProgram(zipOfSmallCard(), PlacesFrom::archive));
    const DialogAnswers answers{answer("Import")};
    drop("MVR0314.exe");
    EXPECT_TRUE(areInPlace(smallCard()));
}

TEST_F(TableImportTest, CancelLeavesEverythingAsItWas) {
    putSampleCard();
    const std::string before = contentOf(sourceFolder / "RACESHR.DBF");
    put("next.zip", zipOfSmallCard());
    const DialogAnswers answers{answer("Cancel")};
    drop("next.zip");
    EXPECT_EQ(1u, questions.size());
    EXPECT_EQ(before, contentOf(sourceFolder / "RACESHR.DBF"));
    EXPECT_FALSE(exists("A Quillon PRO/Imported"));
    EXPECT_EQ("", done());
    EXPECT_EQ("", refusal());
}

TEST_F(TableImportTest, WhatIsRefusedIsToldInASentence) {
    put("next.zip", "no archive");
    put("locked.zip", madeZip({{"RACESHR.DBF", "races"}}, "secret"));
    put("climbing.zip", madeZip({{"../RACESHR.DBF", "races"}}));
    put("horses.zip", madeZip({{"HORSEHR.DBF", "horses"}}));
    const DialogAnswers answers{answer("Import")};
    drop("next.zip");
    EXPECT_EQ(refused + "next.zip is neither a zip archive nor a table of the vendor's.", refusal());
    drop("locked.zip");
    EXPECT_EQ(
        refused +
            "RACESHR.DBF in locked.zip is encrypted. Unpack the archive with its password and bring the "
            "folder.",
        refusal());
    drop("climbing.zip");
    EXPECT_EQ(refused + "../RACESHR.DBF in climbing.zip has a path that leads out of the archive.",
              refusal());
    drop("horses.zip");
    EXPECT_EQ(refused + "RACESHR.DBF is not among them, and there is no card without it.", refusal());
    EXPECT_EQ(0, answers.count());
    put("next.zip", zipOfSmallCard());
    drop("next.zip");
    EXPECT_EQ("", refusal());
}

TEST_F(TableImportTest, TheOpenCardIsNotTouched) {
    startInWindow();
    runner.run(CommandId::RaceButton, numberArgument(3));
    const std::string title = window->windowTitle().toStdString();
    const Text horse = card.entry(3, 1).horseName;
    put("next.zip", zipOfSmallCard());
    const DialogAnswers answers{answer("Import")};
    drop("next.zip");
    ASSERT_EQ(1u, questions.size());
    EXPECT_TRUE(questions[0].more.endsWith("The card that is open stays as it is."));
    EXPECT_TRUE(areInPlace(smallCard()));
    EXPECT_EQ(title, window->windowTitle().toStdString());
    EXPECT_EQ(12, card.raceCount);
    EXPECT_EQ(horse, Text{card.entry(3, 1).horseName});
    EXPECT_TRUE(done().endsWith("Close Quillon and start it again to load them.")) << done().toStdString();
}

TEST_F(TableImportTest, TheSameTablesAgainAreNotImported) {
    putSampleCard();
    const DialogAnswers answers{answer("Import")};
    drop(sourceFolder.string().c_str());
    EXPECT_EQ(0, answers.count());
    EXPECT_EQ("MVR, Saturday 14 March 2026, 12 races: these tables are in place already.", done());
    EXPECT_FALSE(exists("A Quillon PRO/Imported"));
}

TEST_F(TableImportTest, ABoxOfTheBoardLetsFilesPass) {
    startInWindow();
    put("next.zip", "no archive");
    auto* box = child<QWidget>(*window, "BoardPanel").findChild<QLineEdit*>();
    ASSERT_TRUE(box);
    const QString before = box->text();
    EXPECT_TRUE(drop({QUrl::fromLocalFile("next.zip")}, *box));
    EXPECT_EQ(before, box->text());
    EXPECT_NE("", refusal());
}

TEST_F(TableImportTest, AddressesOfTheNetAreNotTaken) {
    EXPECT_FALSE(drop({QUrl{"https://vendor.example/card.zip"}}, *window));
    EXPECT_EQ("", refusal());
}

TEST_F(TableImportTest, TheMenuOpensAFile) {
    put("next.zip", zipOfSmallCard());
    const DialogAnswers answers{[this](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        if (!files) return answer("Import")(dialog);
        files->selectFile(QString::fromStdString(fs::absolute("next.zip").string()));
        QMetaObject::invokeMethod(files, "accept");
    }};
    pressKeys("Ctrl+I");
    EXPECT_EQ(2, answers.count());
    EXPECT_TRUE(areInPlace(smallCard()));
}

TEST_F(TableImportTest, TheMenuOpensAFolder) {
    for (const VendorTable& table : smallCard()) put(fs::path{"fetched"} / Text{table.name}, table.content);
    const DialogAnswers answers{[this](QDialog& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        if (!files) return answer("Import")(dialog);
        files->selectFile(QString::fromStdString(fs::absolute("fetched").string()));
        QMetaObject::invokeMethod(files, "accept");
    }};
    child<QAction>(*window, "ImportFolder").trigger();
    EXPECT_EQ(2, answers.count());
    EXPECT_TRUE(areInPlace(smallCard()));
}

TEST_F(TableImportTest, ItsItemsTellWhatTheyDo) {
    for (const char* name : {"ImportTables", "ImportFolder"}) {
        const auto& item = child<QAction>(*window, name);
        EXPECT_FALSE(item.statusTip().isEmpty()) << name;
        EXPECT_FALSE(item.shortcut().isEmpty()) << name;
        EXPECT_TRUE(item.text().contains('&')) << name;
    }
}

} // namespace
} // namespace quillon
