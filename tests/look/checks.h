#pragma once

#include "look/figures.h"

class QAbstractItemView;
class QLabel;

/// What holds for every window, be it a screen, a message box or an opened list.
namespace tarvold::testing::checks {

/// Texts of labels, of buttons and in boxes, at a contrast of 4.5 at least (WCAG 2.2, 1.4.3).
void expectReadable(const Scene &scene);

/// The same of the selected text of each box.
void expectReadableSelections(const Scene &scene);

/// One row of a list, as it is shown now.
void expectReadableRow(const Scene &scene, const char *sort, const QAbstractItemView &list,
                       int row);

/// Boxes, buttons, lists, scroll bars and what they consist of, at a contrast of 3 at least
/// (WCAG 2.2, 1.4.11).
void expectVisibleControls(const Scene &scene);

/// The focus mark of each control: as many pixels as a line of one device-independent pixel around
/// the control has must change by a contrast of 3 at least (WCAG 2.2, 2.4.13).
void expectFocusMarks(const Scene &scene);

/// Everything that a user aims at, 24 by 24 device-independent pixels at least (WCAG 2.2, 2.5.8).
void expectLargeTargets(const Scene &scene);

/// The rows of a list, at least as tall.
void expectLargeRows(const Scene &scene, const char *sort, const QAbstractItemView &list);

/// No text is cut: captions, labels, what boxes hold, and the longest item of each combo box.
void expectNothingCut(const Scene &scene);

/// One label of these, whatever it shows now.
void expectNotCut(const Scene &scene, const QLabel &label);

/// The window has room on the screen, frame included, and every part of it can be seen whole, if
/// need be by scrolling.
void expectAllOnScreen(const Scene &scene);

/// A list, a menu or a tool tip lies on the screen whole.
void expectInScreen(const Scene &popup);

/// No two parts of the window overlap.
void expectNoOverlaps(const Scene &scene);

} // namespace tarvold::testing::checks
