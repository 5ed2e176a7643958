#include "records/kind_box.h"

#include "controls/controls.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace tarvold::records {

using namespace Qt::StringLiterals;

QString nameOfKind(DataFileKind kind)
{
    QString name = QLatin1StringView(rowOf(kind).content);
    name[0] = name[0].toUpper();
    return name;
}

KindBox::KindBox(QWidget *parent) : ComboBox(parent)
{
    setObjectName(u"kind"_s);
    for (const DataFileKindRow &row : kDataFileKinds) {
        addItem(nameOfKind(row.kind));
    }
    lineEdit()->setReadOnly(true);
    lineEdit()->setAttribute(Qt::WA_TransparentForMouseEvents); // clicks open the list
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setSizeAdjustPolicy(AdjustToContents);
    controls::describe(*this, u"Kind"_s,
                       u"What the records of this file are. Down opens the list of kinds."_s);
    connect(this, &ComboBox::chosen, this, [this] {
        if (const int index = currentIndex(); index >= 0) {
            emit kindChosen(kDataFileKinds.at(std::size_t(index)).kind);
        }
    });
}

void KindBox::show(std::optional<DataFileKind> kind)
{
    setText(kind ? nameOfKind(*kind) : u"Choose the kind"_s);
}

void KindBox::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
    if (opens && event->modifiers() == Qt::NoModifier) {
        showPopup();
    } else {
        ComboBox::keyPressEvent(event);
    }
}

} // namespace tarvold::records
