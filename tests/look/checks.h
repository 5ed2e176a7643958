#pragma once

#include "look/figures.h"

class QAbstractItemView;
class QLabel;

/// Checks for every window: screens, message boxes and opened lists.
namespace tarvold::testing::checks {

/// Expects a contrast of at least 4.5 for the text of labels, buttons and boxes (WCAG 2.2, 1.4.3).
void expectReadable(const Scene &scene);

/// Expects the same for the selected text of each box.
void expectReadableSelections(const Scene &scene);

/// Expects the same for one row of a list.
/// \param sort the kind of measurement, as docs/look.md calls it
void expectReadableRow(const Scene &scene, const char *sort, const QAbstractItemView &list,
                       int row);

/// Expects a contrast of at least 3 for boxes, buttons, lists, scroll bars and their parts (WCAG
/// 2.2, 1.4.11).
void expectVisibleControls(const Scene &scene);

/// Expects a focus mark on each control: at least as many pixels as a line of one
/// device-independent pixel around the control must change, with a contrast of at least 3 (WCAG
/// 2.2, 2.4.13).
void expectFocusMarks(const Scene &scene);

/// Expects every click target to be at least 24 by 24 device-independent pixels (WCAG 2.2, 2.5.8).
void expectLargeTargets(const Scene &scene);

/// Expects the same for the rows of a list.
/// \param sort the kind of measurement, as docs/look.md calls it
void expectLargeRows(const Scene &scene, const char *sort, const QAbstractItemView &list);

/// Expects that no text is cut off: captions, labels, text in boxes, and the longest item of each
/// combo box.
void expectNothingCut(const Scene &scene);

/// Expects that the current text of a label is not cut off.
void expectNotCut(const Scene &scene, const QLabel &label);

/// Expects the window to fit on the screen, frame included, and every part of it to be fully
/// visible, by scrolling if necessary.
void expectAllOnScreen(const Scene &scene);

/// Expects a list, menu or tool tip to be fully on the screen.
void expectInScreen(const Scene &popup);

/// Expects that no two parts of the window overlap.
void expectNoOverlaps(const Scene &scene);

} // namespace tarvold::testing::checks
