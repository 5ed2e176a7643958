#include "records/records_actions.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <vector>

namespace tarvold::records {

using namespace Qt::StringLiterals;

namespace {

struct ActRow
{
    Act act;
    const char *menu;
    const char *name;    ///< of the object
    const char *caption; ///< "&" marks its mnemonic
    std::vector<QKeySequence> keys = {};
    bool startsGroup = false; ///< a line is above it
};

const std::vector<ActRow> &rows()
{
    static const std::vector<ActRow> all = {
        {Act::Save, "&File", "save", "&Save", {Qt::CTRL | Qt::Key_S}},
        {Act::SaveAs, "&File", "saveAs", "Save &As...", {Qt::CTRL | Qt::SHIFT | Qt::Key_S}},
        {Act::Reload, "&File", "readAgain", "&Reload", {Qt::Key_F5}, true},
        {Act::Close, "&File", "close", "&Close", {Qt::CTRL | Qt::Key_W}, true},
        {Act::Undo, "&Edit", "undo", "&Undo", {Qt::CTRL | Qt::Key_Z}},
        {Act::Redo,
         "&Edit",
         "redo",
         "&Redo",
         {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}},
        {Act::Find, "&Edit", "find", "&Find", {Qt::CTRL | Qt::Key_F}, true},
        {Act::FindNext, "&Edit", "findNext", "Find &Next In Record", {Qt::Key_F3}},
        {Act::Delete, "&Record", "delete", "&Delete", {Qt::Key_Delete}},
        {Act::Restore, "&Record", "restore", "&Restore Deleted"},
        {Act::Duplicate, "&Record", "duplicate", "D&uplicate", {Qt::CTRL | Qt::Key_D}},
        {Act::MoveUp, "&Record", "moveUp", "Move U&p", {Qt::CTRL | Qt::SHIFT | Qt::Key_Up}, true},
        {Act::MoveDown, "&Record", "moveDown", "Move Do&wn", {Qt::CTRL | Qt::SHIFT | Qt::Key_Down}},
        {Act::CopyTo, "&Record", "copyTo", "&Copy To Another File...", {}, true},
        {Act::WriteSimilar, "&Record", "writeSimilar", "Write A &Similar One"},
        {Act::NextProblem, "&Problems", "nextProblem", "&Next Problem", {Qt::Key_F8}},
        {Act::PreviousProblem,
         "&Problems",
         "previousProblem",
         "&Previous Problem",
         {Qt::SHIFT | Qt::Key_F8}},
        {Act::RepairSelected, "&Problems", "repairSelected", "Repair &Selected Records", {}, true},
        {Act::RepairAll, "&Problems", "repairAll", "Repair &All Problems"},
        {Act::OnlyProblems, "&View", "onlyProblemsEntry", "Only With &Problems"},
        {Act::FileOrder, "&View", "fileOrder", "&File Order", {}, true},
    };
    return all;
}

QAction *newAction(const ActRow &row, QObject *parent)
{
    auto *action = new QAction(QLatin1StringView(row.caption), parent);
    action->setObjectName(QLatin1StringView(row.name));
    action->setShortcuts({row.keys.begin(), row.keys.end()});
    action->setAutoRepeat(row.act == Act::Undo || row.act == Act::Redo);
    return action;
}

} // namespace

RecordsActions::RecordsActions(QMainWindow &window, QWidget &list) : QObject(&window)
{
    QMenu *menu = nullptr;
    for (const ActRow &row : rows()) {
        const QString title = QLatin1StringView(row.menu);
        if (menu == nullptr || menu->title() != title) {
            menu = window.menuBar()->addMenu(title);
            menu->setToolTipsVisible(true);
        }
        if (row.startsGroup) {
            menu->addSeparator();
        }
        QAction *action = newAction(row, &window);
        menu->addAction(action);
        m_actions.emplace(row.act, action);
        if (row.act == Act::Delete) {
            action->setShortcutContext(Qt::WidgetShortcut);
            list.addAction(action);
            m_recordMenu = menu;
        }
    }
    m_sortMenu = menu->addMenu(u"&Sort By"_s);
    m_actions.at(Act::OnlyProblems)->setCheckable(true);
    m_actions.at(Act::WriteSimilar)->setVisible(false);
}

} // namespace tarvold::records
