#pragma once

class QScrollArea;

namespace tarvold {

/// Lays the content of a scroll area out now, as Qt does later, so that its places can be asked
/// for. The content has a layout.
void layOutNow(QScrollArea &area);

} // namespace tarvold
