// What the window tells of by itself: writes that failed, boards that wait, horses that are not shown, and how
// many faults the journal has.
#pragma once

#include "core/files.h"
#include "desktop/command_runner.h"
#include "desktop/notice_bar.h"

#include <QPushButton>

namespace quillon {

class WindowNotices : public QObject {
    Q_OBJECT

public:
    WindowNotices(CommandRunner& runner, NoticeBar& bar, QPushButton& faults);
    ~WindowNotices() override;

    void refresh();

    /// A command was not run, for this reason; another one does what was meant.
    void tellRefusal(const QString& reason, CommandId instead);

private:
    void takeUp(CommandId id);
    void tellPending(const QString& text);
    void tellMoreHorses();
    void tellWriteFailure(const WriteFailure& failure);

    CommandRunner& runner_;
    NoticeBar& bar_;
    QPushButton& faults_;
    int raceLookedAt_ = 0;
    int horsesThere_ = 0; ///< in that race
};

} // namespace quillon
