// The proper names of all that a user can do, in the order of the command table.
#pragma once

#include <cstddef>

namespace quillon {

enum class CommandId {
    // The Start button and the card's files
    Start,
    NewRC,
    RecallRaceCard,
    ChooseFile,
    Save,
    CloseRC,
    PrintSummary,
    PrintCondensedProgram,
    PrintNotes,
    Export,
    Exit_QL,
    CloseWindow,

    // Changes, and the way back
    Undo,
    Redo,
    UndoTo,
    TakeAllIn,
    Recover,
    Forget,

    // What was noted from card to card
    Note,

    // Walking the races
    MainScreen,
    RaceButton,
    Previous,
    Next,
    RaceList,
    EntryButton,

    // The board and the race view
    Box,
    Tote,
    Refunds,
    Cell,

    // Scratches, line choices, drivers
    Command4,
    Command3,
    Command7,
    DriverColumn,
    DriverChoice,

    // Heats and results
    HeatWinner,
    ViewHeat,
    HeatChoice,
    AutoRecord,
    EBET,

    // Reports in the viewer
    Entries,
    ViewSummary,
    Pick3Selections,
    ViewCondensedProgram,
    DriverList,
    NotePad,

    // What the selections earned
    SelectionResults,
    Record,
    ALL,
    Select,
    SelectTrack,
    HALF,
    FIVE,
    Seven,
    MILE,
    QUARTER,
    Print2,
    Star,
    MarginChoice,
    OddsChoice,
    MaxOddsChoice,
    Track_Profile,
    Pick3Results,

    // Settings, tools and help
    ArchivesEditor,
    TrackEditor,
    EXE,
    Diagnostic,
    TestResults,
    Reset,
    USTA,
    RTN,
    Weather,
    TRC,
    QLR,
    About,
    Version,

    count ///< how many there are
};

inline constexpr auto commandCount = static_cast<std::size_t>(CommandId::count);

} // namespace quillon
