#pragma once

#include <QSize>
#include <QString>

#include <optional>

class QWidget;

namespace tarvold::testing {

/// Rests the mouse on the middle of a widget for as long as it takes to get a tooltip.
void askForToolTip(QWidget &widget);

/// The tooltip that comes when the mouse rests on a widget, as plain text without break points, or
/// nothing. Closes it again.
/// \param size where to put the size of the tooltip, or null
std::optional<QString> toolTipOf(QWidget &widget, QSize *size = nullptr);

} // namespace tarvold::testing
