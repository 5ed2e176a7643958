#pragma once

#include <QHash>
#include <QLabel>

namespace tarvold {

/// What shows a field's help: getting the focus, or also a mouse click.
enum class HelpOn { Focus, FocusAndClick };

/// The help label of a screen: shows the help of the field that was entered last.
///
/// It is always tall enough for its longest help, so that nothing below it moves.
class HelpLine : public QLabel
{
    Q_OBJECT
public:
    explicit HelpLine(QWidget *parent = nullptr);

    /// Shows `help` whenever the user enters the control.
    void explain(QWidget &control, const QString &help, HelpOn on);

    /// Shows the help that explain() was given for a control; does nothing for any other control.
    void showFor(const QWidget &control);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Help
    {
        QString text;
        HelpOn on;
    };

    QHash<const QObject *, Help> m_helps;
};

} // namespace tarvold
