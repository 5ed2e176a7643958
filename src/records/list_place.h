#pragma once

#include "records/place_keeper.h"

#include <QObject>

#include <vector>

namespace tarvold::records {

class RecordListModel;
class RecordListView;

/// Brings a list back to where it stood when its file is read again, or many records come or go at
/// once: to the current record, the selected ones, and the one at the top.
///
/// A filter may show the current record only later, as problems are found. It is waited for until
/// the user goes elsewhere.
class ListPlace : public QObject
{
    Q_OBJECT
public:
    ListPlace(Document &document, const RecordListModel &model, RecordListView &list);

    /// Whether the current record is waited for.
    bool isAwaited() const { return m_isAwaited; }

private:
    void remember();
    void find();
    void goBack();
    void select();

    Document &m_document;
    const RecordListModel &m_model;
    RecordListView &m_list;
    PlaceKeeper m_view; ///< the current record and the one at the top
    PlaceKeeper m_selected;
    int m_sideways = 0; ///< how far it was scrolled
    bool m_isAwaited = false;
    std::vector<int> m_viewFound;
    std::vector<int> m_selectedFound;
};

} // namespace tarvold::records
