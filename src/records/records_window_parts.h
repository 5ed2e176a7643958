#pragma once

#include "records/document.h"
#include "records/records_window.h"

#include <optional>
#include <utility>

class QCheckBox;
class QLabel;
class QProgressBar;
class QStackedWidget;

namespace tarvold {
class PushButton;
class TextBox;
} // namespace tarvold

namespace tarvold::records {

class KindBox;
class ListPlace;
class NoticeLine;
class PathLabel;
class ProblemScan;
class RecordListModel;
class RecordListView;
class RecordPane;
class RecordsActions;
class RecordsFile;
class RecordsTasks;

/// All parts of a records window, and what connects them.
class RecordsWindow::Parts
{
public:
    explicit Parts(RecordsWindow &whole);
    ~Parts();

    RecordsWindow &window;
    Document document;
    // Destroyed before the document, which they look at.
    std::unique_ptr<ProblemScan> scan;
    std::unique_ptr<RecordListModel> model;

    PathLabel *path = nullptr;
    QLabel *kindLabel = nullptr;
    KindBox *kind = nullptr;
    QLabel *kindNote = nullptr; ///< where the file's name says another kind
    QWidget *searchRow = nullptr;
    TextBox *search = nullptr;
    QCheckBox *onlyProblems = nullptr;
    NoticeLine *notice = nullptr;
    QStackedWidget *pages = nullptr; ///< the records, or why there are none
    QLabel *failure = nullptr;
    RecordListView *list = nullptr;
    RecordPane *pane = nullptr;
    QLabel *counts = nullptr;
    QProgressBar *progress = nullptr;
    PushButton *stop = nullptr;
    std::optional<DataFileKind> shownKind; ///< whose columns the list has
    std::pair<int, int> repaired; ///< how many records the repairs that run have looked at, of all

    RecordsFile *file = nullptr;
    RecordsTasks *tasks = nullptr;
    ListPlace *place = nullptr;
    RecordsActions *actions = nullptr;

    void showCounts();
    QString countsText() const;
    void showTitle();
    void enableActions();

private:
    QLayout *newHead();
    QWidget *newSearchRow();
    QWidget *newPages();
    QLayout *newFoot();
    void connectFile();
    void connectActions();
    void connectSearch();
    void connectList();
    void connectScan();
    void followRows();
    bool isPlaceAwaited() const;
    void showProgress();
    void writeSimilar();
    void fillSortMenu();
    void showPlaceholder();
    void showReset();
    void showRecords();
    void showFailure(const QString &text);
    void showKindBox(bool isShown);
    void showKindNote(const QString &text);
};

} // namespace tarvold::records
