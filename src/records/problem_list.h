#pragma once

#include "records/problems.h"

#include <QStringListModel>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;

namespace tarvold {
class ListBox;
class PushButton;
} // namespace tarvold

namespace tarvold::records {

/// The problems of a record in words, and a button that repairs the selected one if a repair is
/// offered. Hidden while there are none.
class ProblemList : public QWidget
{
    Q_OBJECT
public:
    explicit ProblemList(QWidget *parent = nullptr);

    /// Shows other problems. One that was selected and is still there stays selected.
    void setProblems(std::vector<Problem> problems);
    const std::vector<Problem> &problems() const { return m_problems; }

    /// Whether repairs are offered at all.
    void setEditable(bool editable);

signals:
    /// The user clicked a problem, or pressed Enter on it.
    void chosen(const tarvold::records::Problem &problem);
    /// The user pressed "Repair" while this problem was selected.
    void repairRequested(const tarvold::records::Problem &problem);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addList();
    const Problem *selected() const;
    void choose();
    void followSelection();
    void fitHeight();

    std::vector<Problem> m_problems;
    std::optional<Problem> m_pressed; ///< selected when the button went down
    QStringListModel m_texts;
    QLabel *m_heading;
    ListBox *m_list;
    QLabel *m_offer;
    PushButton *m_repair;
    bool m_isEditable = true;
};

} // namespace tarvold::records
