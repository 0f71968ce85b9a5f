// Makes the pictures of the user's guide: walks the sample card through the real window and grabs what it
// shows.
//
//     quillon_pictures FOLDER WIDTH HEIGHT light|dark
#include "app/start_up.h"
#include "core/files.h"
#include "desktop/before_commands.h"
#include "desktop/board_panel.h"
#include "desktop/fault_journal_dialog.h"
#include "desktop/main_window.h"
#include "desktop/menus.h"
#include "desktop/stars_window.h"
#include "screen/ports.h"
#include "support/season.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTableView>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quillon {
namespace {

constexpr const char* results = "A Quillon PRO/Results/MVR_20260314.pmr";

const std::filesystem::path samples{SAMPLE_FOLDER};

// Before the start, as a folder in use has them.
void layOutSettings() {
    for (const char* settings : {"TrackEditor.ini", "CrossOver.ini", "Webpage.ini"})
        std::filesystem::copy(samples / settings, settings);
}

void layOutSample() {
    std::filesystem::copy(samples / "A Quillon PRO", "A Quillon PRO",
                          std::filesystem::copy_options::recursive);
    std::filesystem::create_directories("A Quillon PRO/Results");
}

// For the journal: a file that is gone when it is wanted.
void loseAddresses() { std::filesystem::remove("Webpage.ini"); }

// As a user does it: after what the scratch wrote.
void pasteResults() {
    std::ifstream page{SAMPLE_FOLDER "/results/MVR_20260314-words.txt", std::ios::binary};
    std::ofstream{results, std::ios::binary | std::ios::app} << page.rdbuf();
}

// Some years of cards, for the profiles: the recorded card again under other dates.
void repeatRecordedCard() {
    const Text recorded = readFile({Folder::working, "HRA.ini"});
    Text archive;
    for (int year = 2024; year <= 2026; ++year)
        for (int month = 1; month <= 12; ++month) {
            Text line = recorded;
            const Text number = std::to_string(year * 10000 + month * 100 + 14);
            archive += line.replace(6, number.size(), number);
        }
    writeFile({Folder::working, "HRA.ini"}, archive);
}

class Pictures {
public:
    Pictures(QString folder, QSize size, Theme theme) : folder_{std::move(folder)}, window_{appearance_} {
        // Pictures take no answers: every question is answered Yes, every message is passed over.
        ports.message = [](auto&, auto&) {};
        ports.question = [](auto&, auto&) { return true; };
        window_.before().ask = [](const WindowQuestion&) { return goOnAnswer; };
        appearance_.setTheme(theme);
        window_.resize(size);
        window_.show();
    }

    void takeAll() {
        take("empty");
        layOutSample();
        run(CommandId::Start);
        take("race");
        noteSome();
        show("Overview");
        take("overview");
        run(CommandId::RaceButton, numberArgument(3));
        run(CommandId::EntryButton, numberArgument(2));
        take("past-lines");
        takeWhy();
        run(CommandId::Command3, numberArgument(1)); // line 2 is the program's own
        take("line-taken");
        run(CommandId::Command3, numberArgument(0));
        run(CommandId::Command4, numberArgument(4));
        take("scratched");
        takeWorth();
        takeTickets();
        run(CommandId::DriverColumn, numberArgument(2));
        take("driver-list");
        run(CommandId::DriverChoice, textArgument("EXIT"));
        pasteResults();
        run(CommandId::EBET);
        take("results");
        run(CommandId::RaceButton, numberArgument(7));
        take("dead-heat");
        run(CommandId::SelectionResults);
        take("summary");
        run(CommandId::Record);
        run(CommandId::MainScreen);
        repeatRecordedCard();
        run(CommandId::ALL);
        take("profile");
        run(CommandId::Track_Profile);
        take("tracks");
        run(CommandId::Pick3Results);
        take("picks");
        run(CommandId::MainScreen);
        run(CommandId::Star);
        run(CommandId::MarginChoice, textArgument("ALL Margins"));
        run(CommandId::OddsChoice, textArgument("ALL Odds"));
        run(CommandId::MaxOddsChoice, textArgument("ALL Odds"));
        takeOf(*window_.findChild<StarsWindow*>(), "stars", {950, 573});
        run(CommandId::MainScreen);
        run(CommandId::HeatWinner);
        take("heat");
        run(CommandId::Save);
        run(CommandId::CloseRC);
        run(CommandId::RecallRaceCard);
        take("recall");
        loseAddresses();
        run(CommandId::Reset);
        show("FaultJournal");
        takeOf(*window_.findChild<FaultJournalDialog*>(), "fault-journal", {800, 467});
    }

    bool failed() const { return failed_; }

private:
    // After a season of invented cards, which no list of the later pictures should have.
    void takeWorth() {
        putSeason(20260314, 0.4, 40, 11);
        show("Worth");
        auto* table = window_.findChild<QTableWidget*>("WorthTable");
        constexpr int tonight = 5;
        int row = 0;
        for (const char* odds : {"2/1", "9/2", "30", "5-2"}) table->item(row++, tonight)->setText(odds);
        takeOf(*window_.findChild<QDockWidget*>("WorthDock"), "worth");
        show("Worth");
        std::filesystem::remove_all("A Quillon PRO/Race Cards");
    }

    void takeTickets() {
        show("Tickets");
        const auto child = [&](const char* name) { return window_.findChild<QWidget*>(name); };
        qobject_cast<QComboBox*>(child("TicketType"))->setCurrentIndex(4); // a trifecta
        qobject_cast<QDoubleSpinBox*>(child("TicketStake"))->setValue(0.5);
        qobject_cast<QDoubleSpinBox*>(child("TicketBudget"))->setValue(50);
        auto* boxes = window_.findChild<QTableWidget*>("TicketBoxes");
        const std::vector<std::vector<int>> checked{{0, 1}, {0, 1, 3}, {0, 1, 2, 3}};
        for (int at = 0; at < boxes->rowCount(); ++at)
            for (const int column : checked[static_cast<std::size_t>(at)])
                boxes->item(at, column)->setCheckState(Qt::Checked);
        for (const char* button : {"AddTicket", "SheetTickets"})
            window_.findChild<QAbstractButton*>(button)->click();
        takeOf(*window_.findChild<QDockWidget*>("TicketsDock"), "tickets");
        show("Tickets");
    }

    // Put away again, since the other pictures are of a window as it begins.
    void noteSome() {
        run(CommandId::Note, textArgument("Skip The Salad = wants the rail; better over a dry track"));
        run(CommandId::Note, textArgument("Rosario, I = new colours since February"));
        run(CommandId::Note, textArgument("Race 1 = windy, the front was no place to be"));
        auto& entries = *window_.findChild<QTableView*>("RaceView");
        entries.setCurrentIndex(entries.model()->index(1, 0));
        show("Notes");
        takeWith("notes", *window_.findChild<QDockWidget*>("NotesDock"));
        show("Notes");
        QFile::remove("Notes.txt");
        window_.refresh();
    }

    void run(CommandId id, const Arguments& arguments = {}) {
        if (window_.runner().run(id, arguments)) return;
        std::fprintf(stderr, "%s could not be run\n", command(id).name);
        failed_ = true;
    }

    void show(const char* action) { window_.findChild<QAction*>(action)->trigger(); }

    // Line 4, beside the one that was chosen.
    void takeWhy() {
        auto* lines = window_.findChild<QTableView*>("EntryLines");
        lines->setCurrentIndex(lines->model()->index(3, 1));
        show("Why");
        take("why-window");
        auto* dock = window_.findChild<QDockWidget*>("WhyDock");
        dock->setFloating(true);
        dock->resize(640, 560);
        takeOf(*dock, "why");
        dock->hide();
    }

    void take(const char* name) {
        // A dialog over the window belongs to the picture.
        QTest::qWait(50);
        QPixmap picture = window_.grab();
        for (QWidget* over : QApplication::topLevelWidgets()) {
            if (over == &window_ || !over->isVisible() || over->windowFlags().testFlag(Qt::ToolTip)) continue;
            drawOver(picture, *over);
        }
        keep(picture, name);
    }

    // A dock that has no room beside the race stands over the lower right corner of the window.
    void takeWith(const char* name, QDockWidget& dock) {
        QTest::qWait(50);
        QPixmap picture = window_.grab();
        if (dock.isFloating()) {
            QPainter painter{&picture};
            dock.render(&painter, QPoint{picture.width() - dock.width(), picture.height() - dock.height()});
        }
        keep(picture, name);
    }

    // In the middle of the window, with the frame and the title that a desktop gives it.
    static void drawOver(QPixmap& picture, QWidget& dialog) {
        constexpr int titleHeight = 28;
        const QRect body{
            (QPoint{picture.width(), picture.height()} - QPoint{dialog.width(), dialog.height()}) / 2,
            dialog.size()};
        QPainter painter{&picture};
        const QRect frame = body.adjusted(-1, -titleHeight, 1, 1);
        painter.fillRect(frame, dialog.palette().color(QPalette::Highlight));
        painter.setPen(dialog.palette().color(QPalette::HighlightedText));
        painter.drawText(frame.adjusted(8, 0, -8, 0).adjusted(0, 0, 0, titleHeight - frame.height()),
                         Qt::AlignVCenter, dialog.windowTitle());
        dialog.render(&painter, body.topLeft());
    }

    // As on a screen with room for it.
    void takeOf(QWidget& widget, const char* name, QSize size) {
        widget.resize(size);
        takeOf(widget, name);
    }
    void takeOf(QWidget& widget, const char* name) {
        QTest::qWait(50);
        keep(widget.grab(), name);
    }

    void keep(const QPixmap& picture, const char* name) {
        const QString file = QStringLiteral("%1/%2.png").arg(folder_, QString{name});
        if (picture.save(file)) return;
        std::fprintf(stderr, "%s could not be written\n", file.toUtf8().constData());
        failed_ = true;
    }

    QString folder_;
    Appearance appearance_;
    MainWindow window_;
    bool failed_ = false;
};

int takePictures(const QStringList& arguments) {
    if (arguments.size() != 5) {
        std::fprintf(stderr, "usage: quillon_pictures FOLDER WIDTH HEIGHT light|dark\n");
        return 2;
    }
    QDir{}.mkpath(arguments[1]);
    const QString folder = QDir{arguments[1]}.absolutePath();
    QTemporaryDir work;
    QDir::setCurrent(work.path());
    layOutSettings();
    StartUp();
    Pictures pictures{folder,
                      {arguments[2].toInt(), arguments[3].toInt()},
                      arguments[4] == "dark" ? Theme::dark : Theme::light};
    pictures.takeAll();
    QDir::setCurrent(folder);
    return pictures.failed() ? 1 : 0;
}

} // namespace
} // namespace quillon

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application{argc, argv};
    QApplication::setOrganizationName("Quillon tests");
    QApplication::setApplicationName("quillon-pictures");
    return quillon::takePictures(QApplication::arguments());
}
