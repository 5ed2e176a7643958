#pragma once

#include <QHash>
#include <QLabel>

namespace tarvold {

/// What makes a field's help appear: gaining the focus, or a mouse click as well.
enum class HelpOn { Focus, FocusAndClick };

/// The help label of a screen: shows the help of the field that was last entered.
///
/// It is as tall as its longest help needs, whatever it shows, so that nothing below it moves.
class HelpLine : public QLabel
{
    Q_OBJECT
public:
    explicit HelpLine(QWidget *parent = nullptr);

    /// Shows `help` whenever the user enters the control.
    void explain(QWidget &control, const QString &help, HelpOn on);

    /// Shows the help of a control that explain() has told of; does nothing for any other.
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
