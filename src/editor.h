#pragma once

#include "controls/double_click_guard.h"
#include "screens/flow.h"
#include "screens/screens.h"

#include <QObject>

#include <optional>

namespace tarvold {

enum class DataFileKind;
enum class MenuEntry;

namespace records {
class Record;
class RecordsWindow;
} // namespace records

/// The program: all screens, the flows that the main menu's buttons start, and the records windows
/// that stand beside them.
class Editor : public QObject
{
    Q_OBJECT
public:
    /// \param clock the time for the guard against double clicks on buttons
    explicit Editor(DoubleClickGuard::Clock clock = &std::chrono::steady_clock::now);

    /// Shows the main menu. No other screen exists yet.
    void start();

    Screens &screens() { return m_screens; }

signals:
    /// The program is to end, at once. No records window is open any more.
    void exitRequested();

private:
    void begin(MenuEntry entry);
    /// Ends the program, unless the user keeps a records window because of its changes.
    void end();
    /// Opens a records window, or shows the one that the file has already.
    void openRecords(const QString &name, std::optional<DataFileKind> kind);
    /// Begins a new record with the values of another one, after the window has saved its changes.
    /// Tells the user why, if it can't.
    void writeSimilar(records::RecordsWindow &asking, const QByteArray &bytes, DataFileKind kind);
    /// Whether that can be done now; tells the user why not.
    bool mayWriteSimilar(records::RecordsWindow &asking, const records::Record &record) const;
    /// Whether that shows the first screen of the record's flow.
    bool beginRecord(DataFileKind kind);

    DoubleClickGuard m_guard;
    Screens m_screens;
    Flow m_endings;
    Flow m_segments;
    bool m_isEnding = false; ///< records windows are being closed
};

} // namespace tarvold
