#include "controls/MorphListBox/MorphListAccessible.h"

#include "controls/MorphListBox/MorphListBox.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// One item, as assistive tools see it. It is made when a tool asks for it.
class ItemInterface : public QAccessibleInterface,
                      public QAccessibleTableCellInterface,
                      public QAccessibleActionInterface
{
public:
    ItemInterface(MorphListBox* list, int index) : m_list(list), m_index(index) {}

    [[nodiscard]] bool isValid() const override { return m_list && m_index < m_list->ListCount(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_list.data());
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        return kind == QAccessible::Name          ? m_list->List(m_index)
               : kind == QAccessible::Description ? m_list->rowDescription(m_index)
                                                  : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override
    {
        const QRect row = isValid() ? m_list->rowRect(m_index) : QRect();
        return row.isEmpty() ? QRect() : QRect(m_list->mapToGlobal(row.topLeft()), row.size());
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool checkList = m_list->Style() == 1;
        const bool current = m_list->ListIndex() == m_index;
        state.disabled = !m_list->isEnabled();
        state.focusable = state.selectable = true;
        state.multiSelectable = m_list->MultiSelect() != 0;
        state.checkable = checkList;
        state.checked = checkList && m_list->Selected(m_index);
        state.selected = checkList ? current : m_list->Selected(m_index);
        state.focused = current && m_list->hasFocus();
        state.invisible = state.offscreen = m_list->rowRect(m_index).isEmpty();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface*>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    [[nodiscard]] bool isSelected() const override { return state().selected; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override { return 0; }
    [[nodiscard]] int rowIndex() const override { return m_index; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

    [[nodiscard]] QStringList actionNames() const override
    {
        if (!isValid())
            return {};
        return {m_list->Style() == 1 ? toggleAction() : pressAction(), setFocusAction()};
    }
    void doAction(const QString& name) override
    {
        if (!isValid())
            return;
        if (name == setFocusAction()) {
            m_list->setFocus();
            m_list->setListIndex(m_index);
        } else if (actionNames().contains(name)) {
            // Afterwards: what a click starts may take long, and the caller would wait for its end.
            QMetaObject::invokeMethod(
                m_list.data(), [list = m_list.data(), row = m_index] { list->activateRow(row); },
                Qt::QueuedConnection);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<MorphListBox> m_list;
    int m_index;
};

class ListInterface : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit ListInterface(MorphListBox* list) : QAccessibleWidget(list, QAccessible::List) {}
    ~ListInterface() override { forgetItems(); }

    void forgetItems()
    {
        for (const QAccessible::Id id : std::as_const(m_items))
            QAccessible::deleteAccessibleInterface(id);
        m_items.clear();
    }

    [[nodiscard]] int childCount() const override { return list()->ListCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto known = m_items.constFind(index);
        if (known != m_items.cend())
            return QAccessible::accessibleInterface(*known);
        auto* const item = new ItemInterface(list(), index);
        m_items.insert(index, QAccessible::registerAccessibleInterface(item));
        return item;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* item) const override
    {
        auto* const cell = const_cast<QAccessibleInterface*>(item)->tableCellInterface();
        return cell ? cell->rowIndex() : -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint position = list()->mapFromGlobal(QPoint(x, y));
        const int row = list()->MouseOverIndex(position.y());
        return list()->rowRect(row).contains(position) ? child(row) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        return list()->hasFocus() ? child(list()->ListIndex()) : nullptr;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? list()->Text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiSelectable = list()->MultiSelect() != 0;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int) const override { return child(row); }
    [[nodiscard]] int selectedCellCount() const override { return list()->SelCount(); }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> cells;
        for (const int row : selectedRows())
            cells.append(child(row));
        return cells;
    }
    [[nodiscard]] QString columnDescription(int) const override { return {}; }
    [[nodiscard]] QString rowDescription(int) const override { return {}; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return list()->SelCount(); }
    [[nodiscard]] int columnCount() const override { return 1; }
    [[nodiscard]] int rowCount() const override { return list()->ListCount(); }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override
    {
        QList<int> rows;
        const int wanted = list()->SelCount();
        for (int row = 0; row < list()->ListCount() && rows.size() < wanted; ++row) {
            if (list()->Selected(row))
                rows.append(row);
        }
        return rows;
    }
    [[nodiscard]] bool isColumnSelected(int) const override { return false; }
    [[nodiscard]] bool isRowSelected(int row) const override { return list()->Selected(row); }
    bool selectRow(int row) override { return select(row, true); }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override { return select(row, false); }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { forgetItems(); }

private:
    [[nodiscard]] MorphListBox* list() const { return static_cast<MorphListBox*>(widget()); }
    bool select(int row, bool on)
    {
        list()->setSelected(row, on);
        return row >= 0 && row < childCount() && list()->Selected(row) == on;
    }

    mutable QHash<int, QAccessible::Id> m_items; // those that a tool has asked for
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* const list = qobject_cast<MorphListBox*>(object);
    return list ? new ListInterface(list) : nullptr;
}

} // namespace

void installMorphListAccessibility()
{
    QAccessible::installFactory(makeInterface); // a factory that is known already is not taken twice
}

void announceMorphListItems(MorphListBox* list)
{
    QAccessibleTableModelChangeEvent event(list, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
}

void announceMorphListRow(MorphListBox* list, int row)
{
    // A child of -1 is the list itself.
    QAccessibleEvent selected(list, QAccessible::Selection);
    selected.setChild(row);
    QAccessible::updateAccessibility(&selected);
    if (row < 0 || !list->hasFocus())
        return;
    QAccessibleEvent focused(list, QAccessible::Focus);
    focused.setChild(row);
    QAccessible::updateAccessibility(&focused);
}

} // namespace varnhold
