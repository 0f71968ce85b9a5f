#include "desktop/view_menu.h"

#include "desktop/desktop_ports.h"
#include "desktop/shown_text.h"
#include "desktop/side_dock.h"

#include <QActionGroup>

#include <array>

namespace quillon {
namespace {

struct ThemeItem {
    Theme theme;
    const char* name;
    const char* caption;
};
constexpr std::array themes{ThemeItem{Theme::system, "ThemeSystem", "As the &Desktop"},
                            ThemeItem{Theme::light, "ThemeLight", "&Light"},
                            ThemeItem{Theme::dark, "ThemeDark", "Dar&k"}};

} // namespace

ViewMenu::ViewMenu(Appearance& appearance, DesktopPorts& ports, QDockWidget& raceList, QWidget* parent)
    : QMenu{tr("&View"), parent}, appearance_{appearance} {
    setToolTipsVisible(true);
    addPlaces(raceList);
    afterDocks_ = addSeparator();
    addZoom();
    addSeparator();
    addViewer(ports);
    addThemes();
}

template <typename Slot>
QAction* ViewMenu::add(const QString& text, const QList<QKeySequence>& keys, const QString& hint, Slot slot) {
    QAction* action = addAction(text);
    action->setShortcuts(keys);
    action->setStatusTip(hint);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void ViewMenu::addPlaces(QDockWidget& raceList) {
    overview_ = add(tr("Card &Overview"), {QKeySequence{"F4"}}, tr("All races of the card at a glance"),
                    [this](bool wanted) { emit overviewWanted(wanted); });
    overview_->setObjectName("Overview");
    overview_->setCheckable(true);
    QAction* list = raceList.toggleViewAction();
    list->setText(tr("Race &List"));
    list->setShortcut(QKeySequence{"F3"});
    list->setStatusTip(tr("The list of the card's races; a double click opens one"));
    addAction(list);
}

void ViewMenu::addDock(const QString& text, const char* name, const char* keys, const QString& hint,
                       SideDock& dock) {
    auto* action = new QAction{text, this};
    action->setObjectName(name);
    action->setShortcut(QKeySequence{keys});
    action->setStatusTip(hint);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [&dock](bool wanted) { dock.open(wanted); });
    connect(&dock, &QDockWidget::visibilityChanged, action, &QAction::setChecked);
    insertAction(afterDocks_, action);
}

void ViewMenu::addZoom() {
    add(tr("Zoom &In"), {QKeySequence{"Ctrl++"}, QKeySequence{"Ctrl+="}}, tr("Larger"),
        [this] { appearance_.zoomBy(1); });
    add(tr("Zoom O&ut"), {QKeySequence{"Ctrl+-"}}, tr("Smaller"), [this] { appearance_.zoomBy(-1); });
    add(tr("Normal &Size"), {QKeySequence{"Ctrl+0"}}, tr("As large as designed"),
        [this] { appearance_.setZoom(100); });
}

void ViewMenu::addViewer(DesktopPorts& ports) {
    QAction* viewer =
        add(tr("&Built-in Text Viewer"), {},
            tr("Read reports and settings in Quillon's own viewer, not in the desktop's editor"),
            [&ports](bool wanted) { ports.setBuiltInViewer(wanted); });
    viewer->setObjectName("BuiltInViewer");
    viewer->setCheckable(true);
    viewer->setChecked(ports.builtInViewer());
}

void ViewMenu::addThemes() {
    QMenu* menu = addMenu(tr("&Theme"));
    auto* group = new QActionGroup{this};
    for (const ThemeItem& item : themes) {
        QAction* action = menu->addAction(tr(item.caption));
        action->setObjectName(item.name);
        action->setCheckable(true);
        action->setChecked(item.theme == appearance_.theme());
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, theme = item.theme] { appearance_.setTheme(theme); });
    }
}

void ViewMenu::refresh(bool overviewShown) {
    overview_->setEnabled(cardIsOpen());
    overview_->setChecked(overviewShown);
}

} // namespace quillon
