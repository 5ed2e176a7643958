#pragma once

#include <QTextEdit>

namespace tarvold::records {

/// A text box for one line of a file that shows all of it: a long text wraps, and the box grows.
///
/// Text is kept as it is typed or pasted, except for line breaks, which become spaces. As in a
/// TextBox, a first click selects a text that is just "Any", "N/A" or "None".
///
/// A text that is longer than kMostEdited is shown by its beginning and end, and cannot be edited.
class WrappedBox : public QTextEdit
{
    Q_OBJECT
public:
    /// In characters. Laying out a longer text takes noticeable time.
    static constexpr qsizetype kMostEdited = 20'000;

    explicit WrappedBox(QWidget *parent = nullptr);

    QString text() const;
    /// Shows another text; nothing can be undone then. The cursor stays as far as it can.
    void setText(const QString &text);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The focus went to another control of the window, so the user has finished typing.
    void left();

protected:
    void insertFromMimeData(const QMimeData *source) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void fitMargin();
    bool isFillWord() const;

    QString m_long;                  ///< the whole text if it is too long to be edited
    bool m_isFocusNew = false;       ///< a click brought the focus, and is not handled yet
    bool m_isPressNew = false;       ///< the button of that click is still down
    mutable int m_measuredWidth = 0; ///< what heightForWidth() was asked last
    mutable int m_measuredHeight = -1;
};

} // namespace tarvold::records
