#include "desktop/menus.h"

#include "desktop/shown_text.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

/// How a command's item is reached by keys: the letter that is underlined, and a shortcut; and what the
/// status bar says of it.
struct ItemKeys {
    std::string_view command;
    char mnemonic;
    const char* shortcut;
    const char* hint;
};

// clang-format off
constexpr std::array itemKeys{
    // File
    ItemKeys{"NewRC",                 'N', "",          "Start the program that fetches a new card, and end"},
    ItemKeys{"RecallRaceCard",        'R', "Ctrl+O",    "Open a saved race card"},
    ItemKeys{"Save",                  'S', "Ctrl+S",    "Save the race card with its results"},
    ItemKeys{"CloseRC",               'C', "Ctrl+W",    "Save the race card and clear the window"},
    ItemKeys{"PrintSummary",          'P', "",          "Read the day's results in the text viewer, to print them"},
    ItemKeys{"Print2",                'P', "",          "Read the profile in the text viewer, to print it"},
    ItemKeys{"PrintCondensedProgram", 'o', "Ctrl+P",    "Print the condensed program, a page a race"},
    ItemKeys{"Exit_QL",               'x', "Ctrl+Q",    "End Quillon without a question"},
    // Navigation
    ItemKeys{"Start",                 'S', "F5",        "Load and rate the card of the vendor's tables"},
    ItemKeys{"Next",                  'N', "Alt+Right", "Store the board and go to the next race"},
    ItemKeys{"Previous",              'P', "Alt+Left",  "Store the board and go to the race before"},
    ItemKeys{"Command7",              'i', "Ctrl+L",    "Take another past line for the entry on show, by its number"},
    ItemKeys{"MainScreen",            'M', "Ctrl+M",    "Back to the races"},
    ItemKeys{"Entries",               'E', "F9",        "Write the list of the card's entries and read it"},
    ItemKeys{"ViewSummary",           'V', "F6",        "Read the selection sheet"},
    ItemKeys{"Pick3Selections",       'k', "F8",        "Read the tickets of the pick wagers"},
    ItemKeys{"ViewCondensedProgram",  'C', "F7",        "Read the condensed program"},
    ItemKeys{"DriverList",            'D', "Shift+F9",  "Read the drivers' ratings"},
    ItemKeys{"NotePad",               'R', "F11",       "Open the results text of the card, to paste results into it"},
    // Tools
    ItemKeys{"HeatWinner",            'H', "",          "Enter the finishers of a heat for the final"},
    ItemKeys{"ViewHeat",              'V', "",          "Read the log of a heat"},
    ItemKeys{"AutoRecord",            'A', "Ctrl+R",    "Record finishes and payoffs from the card's results text"},
    ItemKeys{"EBET",                  'T', "Ctrl+Shift+R", "Record finishes and payoffs from a results text in words"},
    ItemKeys{"Diagnostic",            'D', "",          "Write a log of every line's rating with the next load"},
    ItemKeys{"TestResults",           'i', "",          "Read the log of the lines' ratings"},
    ItemKeys{"Reset",                 'M', "",          "The data vendor's page in the browser"},
    ItemKeys{"USTA",                  'U', "",          "The racing site in the browser"},
    ItemKeys{"RTN",                   'R', "",          "The video site in the browser"},
    ItemKeys{"Weather",               'W', "",          "The weather at the tracks in the browser"},
    ItemKeys{"TRC",                   'l', "",          "The page of track results in the browser"},
    // Editor
    ItemKeys{"ArchivesEditor",        'A', "",          "Edit the archive of recorded cards"},
    ItemKeys{"TrackEditor",           'T', "",          "Edit the table of tracks"},
    ItemKeys{"EXE",                   'U', "",          "Edit the address of the data vendor's page"},
    // Analysis
    ItemKeys{"SelectionResults",      'S', "F12",       "What the selections of this card earned"},
    ItemKeys{"Star",                  't', "",          "How the first selections did as win bets, by margin and odds"},
    ItemKeys{"Track_Profile",         'r', "",          "Wins of the first selections by track and by track size"},
    ItemKeys{"Pick3Results",          'P', "",          "The picks beside the winners and the payoffs of the pick wagers"},
    // Betting Profiles
    ItemKeys{"ALL",                   'A', "",          "All recorded cards"},
    ItemKeys{"Select",                'S', "",          "The cards of a track"},
    ItemKeys{"HALF",                  '2', "",          "The cards of half-mile tracks"},
    ItemKeys{"FIVE",                  '5', "",          "The cards of five-eighths-mile tracks"},
    ItemKeys{"Seven",                 '7', "",          "The cards of seven-eighths-mile tracks"},
    ItemKeys{"MILE",                  'M', "",          "The cards of mile tracks"},
    ItemKeys{"QUARTER",               'Q', "",          "The cards of mile-and-a-quarter tracks"},
    // Help
    ItemKeys{"QLR",                   'R', "",          "What is new, in the browser"},
    ItemKeys{"About",                 'A', "",          "Whose program this is"},
    ItemKeys{"Version",               'V', "",          "Which version this is"},
};

struct MenuTitle { Menu menu; const char* title; };
constexpr std::array menuTitles{
    MenuTitle{Menu::file,       "&File"},
    MenuTitle{Menu::navigation, "&Navigation"},
    MenuTitle{Menu::tools,      "&Tools"},
    MenuTitle{Menu::editor,     "&Editor"},
    MenuTitle{Menu::analysis,   "&Analysis"},
    MenuTitle{Menu::profiles,   "&Betting Profiles"},
    MenuTitle{Menu::help,       "&Help"},
};
// clang-format on

/// Commands without a menu of their own that a keyboard user reaches in the navigation menu.
constexpr std::array walkCommands{"Start", "Previous", "Next", "Command7"};

const ItemKeys* keysOf(std::string_view command) {
    const auto found = std::find_if(itemKeys.begin(), itemKeys.end(),
                                    [&](const ItemKeys& row) { return row.command == command; });
    return found == itemKeys.end() ? nullptr : &*found;
}

// The caption with its letter underlined; an "&" of the caption itself stays one.
QString withMnemonic(const QString& caption, char letter) {
    QString text = caption.simplified();
    text.replace("&", "&&");
    const auto at = text.indexOf(QChar{letter}, 0, Qt::CaseSensitive);
    if (at >= 0) text.insert(at, '&');
    return text;
}

} // namespace

Menus::Menus(QMenuBar& bar, CommandRunner& runner, QObject* parent) : QObject{parent}, runner_{runner} {
    for (const MenuTitle& row : menuTitles) {
        const bool isSubmenu = row.menu == Menu::profiles;
        QMenu* menu =
            isSubmenu ? menus_.at(Menu::analysis)->addMenu(tr(row.title)) : bar.addMenu(tr(row.title));
        menu->setToolTipsVisible(true);
        menus_[row.menu] = menu;
    }
    addWalk();
    addCommands();
}

void Menus::addWalk() {
    QMenu& navigation = *menus_.at(Menu::navigation);
    for (const char* name : walkCommands) addCommand(navigation, *findCommand(name));
    navigation.addSeparator();
}

void Menus::addCommands() {
    for (const Command& command : commandTable())
        if (command.menu != Menu::none) addCommand(*menus_.at(command.menu), command);
}

QAction* Menus::addCommand(QMenu& menu, const Command& command) {
    const ItemKeys* keys = keysOf(command.name);
    const QString caption = shown(command.caption);
    QAction* action = menu.addAction(keys ? withMnemonic(caption, keys->mnemonic) : caption);
    action->setObjectName(command.name);
    action->setProperty("command", command.name);
    action->setMenuRole(QAction::NoRole);
    if (keys) {
        if (*keys->shortcut != '\0') action->setShortcut(QKeySequence{keys->shortcut});
        action->setStatusTip(tr(keys->hint));
        action->setToolTip(tr(keys->hint));
    }
    const bool hasMark = command.item == MenuItem::HeatWinner || command.item == MenuItem::Diagnostic;
    action->setCheckable(hasMark);
    connect(action, &QAction::triggered, this, [this, name = command.name] {
        runner_.run(name);
        refresh(); // the mark is the screen's, not the click's
    });
    actions_[command.name] = action;
    return action;
}

void Menus::refresh() {
    for (const auto& [name, action] : actions_) {
        const Command& command = *findCommand(name);
        if (command.item) {
            const MenuState& state = theScreen.item(*command.item);
            action->setVisible(state.visible);
            action->setEnabled(state.enabled);
            if (action->isCheckable()) action->setChecked(state.checked);
        } else {
            action->setEnabled(CommandRunner::canRun(command.name));
        }
    }
}

QAction* Menus::action(std::string_view command) const {
    const auto found = actions_.find(command);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* Menus::menu(Menu menu) const {
    const auto found = menus_.find(menu);
    return found == menus_.end() ? nullptr : found->second;
}

} // namespace quillon
