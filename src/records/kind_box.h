#pragma once

#include "controls/combo_box.h"
#include "datafiles/data_file_kind.h"

#include <optional>

namespace tarvold::records {

/// What a kind's records are called at the beginning of a line, such as "Match endings with turns".
QString nameOfKind(DataFileKind kind);

/// Shows the kind of a file's records and lets the user choose another one. It takes no text.
class KindBox : public ComboBox
{
    Q_OBJECT
public:
    explicit KindBox(QWidget *parent = nullptr);

    /// Shows a kind, or that the user has to choose one. This is not a choice.
    void show(std::optional<DataFileKind> kind);

signals:
    void kindChosen(tarvold::DataFileKind kind);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tarvold::records
