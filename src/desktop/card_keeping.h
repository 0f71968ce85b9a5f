// The open card kept against a crash while the window is open, and what a crash left behind offered.
#pragma once

#include "desktop/command_runner.h"
#include "desktop/notice_bar.h"

#include <QTimer>

namespace quillon {

/// After each command it sees to it that the card is kept in time. At its start, and after a card left behind
/// was restored or put away, it offers the newest one in the bar.
class CardKeeping : public QObject {
    Q_OBJECT

public:
    CardKeeping(CommandRunner& runner, NoticeBar& bar);

private:
    void takeUp(CommandId id);
    void offer();

    CommandRunner& runner_;
    NoticeBar& bar_;
    QTimer timer_;
};

} // namespace quillon
