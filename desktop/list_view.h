// Lists: the widget holds no items, it asks the control for what it shows.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "desktop/placed_view.h"

namespace navarun::desktop {

/// The entries of a list as the toolkit asks for them.
class EntriesModel : public QAbstractListModel {
  public:
    explicit EntriesModel(screen::List& list) : m_list{list} {}

    /// Tells the toolkit where the entries are others than at the last call.
    void follow();
    int rowCount(QModelIndex const& parent) const override;
    QVariant data(QModelIndex const& index, int role) const override;

  private:
    screen::List& m_list;
    int m_count = 0;
    unsigned m_version = 0;
};

class ListView : public PlacedView<screen::List, QListView> {
  public:
    ListView(Session& session, screen::List& list, QWidget& parent);

  protected:
    void show_content() override;

  private:
    EntriesModel m_model;
};

}  // namespace navarun::desktop
