#pragma once

class QObject;
class QWidget;

namespace tarvold {

/// While it exists, assistive technology hears nothing of the text, the cursor and the selection of
/// a text box. Everything else is told as ever.
///
/// Qt's text boxes tell of each step at once, even while their signals are blocked.
class TextSilence
{
public:
    /// \param box must outlive this; silences end in the opposite order of their beginning
    explicit TextSilence(const QWidget &box);
    ~TextSilence();
    TextSilence(const TextSilence &) = delete;
    TextSilence &operator=(const TextSilence &) = delete;
    TextSilence(TextSilence &&) = delete;
    TextSilence &operator=(TextSilence &&) = delete;

    /// Whether a silence is in force for an object: a box or the combo box around it.
    static bool isOver(const QObject *object);

private:
    const QWidget &m_box;
    TextSilence *m_outer; ///< the silence around this one; null if none
};

} // namespace tarvold
