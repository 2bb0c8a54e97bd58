// From an arrow key to the finished frame: the grid of contacts with its pages, the list of a group, the form of a
// contact; each beside a QListView whose delegate paints the same rows.
//
// The form's list has a line edit over its current row. The plain QListView paints that row only; the other one
// opens an editor there, as a form must.

#include "contact.h"
#include "focusframe.h"
#include "groupdetail.h"
#include "listgeometry.h"
#include "listpainting.h"
#include "listview.h"
#include "listviewcontactitem.h"
#include "numberedit.h"
#include "phonebench.h"
#include "phonekeys.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QStyledItemDelegate>

namespace {

using namespace PhoneBench;
using Rows = QVector<ListViewItem *>;

constexpr int Passes300 = 580, PassesForm = 450;
constexpr int GridColumnSteps = 98, ListSteps = 290, FormSteps = 15;
constexpr int RowHeight = 34, CellWidth = 187;

/// So many steps in one direction, then back.
void press(benchmark::State &state, QWidget *window, int onward, int back, int steps)
{
    Passes passes(state);
    FrameWatch frame(window);
    int step = 0;
    for (auto _ : state) {
        const int key = step++ / steps % 2 == 0 ? onward : back;
        const Stopwatch watch;
        if (!pressKey(frame, key))
            state.SkipWithError("nothing was painted");
        const double byClock = watch.byClock();
        settle();
        passes.add(watch.busy(), byClock);
    }
    passes.report();
}

template <typename Screen> void show(Screen *screen)
{
    PhoneKeys::showAndActivate(screen);
    settle();
}

/// Paints the rows as the phone's lists do.
class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(const Rows &rows) : m_rows(rows) { }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        ListViewItem *row = m_rows.at(index.row());
        const bool selected = option.state & QStyle::State_Selected;
        QRect rect = option.rect;
        ListPainting::setColors(row, ListPainting::role(selected, ListViewFocusFloating, row));
        row->paint(painter, rect);
        ListPainting::drawDottedLine(painter, QLine(rect.bottomLeft(), rect.bottomRight()), Qt::white);
        if (selected)
            ListPainting::drawFocused(painter, row, rect, ListGeometry::focusFrame(rect, false, true), false,
                                      row->baseTextColor());
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return QSize(option.rect.width(), RowHeight);
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return new QLineEdit(parent);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        static_cast<QLineEdit *>(editor)->setText(index.data().toString());
    }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override { }
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &) const override
    {
        editor->setGeometry(option.rect.adjusted(option.rect.width() / 2, 2, -5, -2));
    }

private:
    const Rows m_rows;
};

/// A list of Qt's own over the same rows in the same place.
struct Peer
{
    explicit Peer(const Rows &rows) : delegate(rows), list(&window)
    {
        QStringList texts;
        for (ListViewItem *row : rows) {
            row->setFocus(true);
            texts.append(row->text());
        }
        model.setStringList(texts);
        window.setFixedSize(384, 134);
        list.setGeometry(5, 2, 374, 104);
        list.setFrameShape(QFrame::NoFrame);
        list.setModel(&model);
        list.setItemDelegate(&delegate);
        list.setEditTriggers(QListView::NoEditTriggers);
        list.setUniformItemSizes(true);
    }
    void show()
    {
        PhoneKeys::showAndActivate(&window);
        list.setFocus();
        list.setCurrentIndex(model.index(0));
        settle();
    }

    RowDelegate delegate;
    QStringListModel model;
    QWidget window;
    QListView list;
};

Rows rowsOf(const QWidget &screen)
{
    Rows rows;
    auto *list = screen.findChild<ListView *>();
    for (int i = 0; i < list->itemSize(); ++i)
        rows.append(list->item(i));
    return rows;
}

int teamId()
{
    const QList<GroupData> groups = theCore->contactManager()->getAllGroups(true);
    return groups.last().id;
}

void grid(benchmark::State &state)
{
    makeTeam();
    Contact app;
    app.start(nullptr, nullptr);
    PhoneKeys::waitUntilActive(&app);
    settle();
    press(state, &app, Qt::Key_Right, Qt::Key_Left, GridColumnSteps);
    app.end();
}

void qtGrid(benchmark::State &state)
{
    makeTeam();
    std::vector<std::unique_ptr<ListViewItem>> cells;
    Rows rows;
    const QList<ContactData> contacts = theCore->contactManager()->getAllContacts();
    for (const ContactData &contact : contacts) {
        cells.emplace_back(new ListViewContactGridItem(contact.name, contact.id, contact.type));
        rows.append(cells.back().get());
    }
    Peer peer(rows);
    peer.list.setFlow(QListView::TopToBottom);
    peer.list.setWrapping(true);
    peer.list.setGridSize(QSize(CellWidth, RowHeight));
    peer.list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QLabel title(&peer.window); // the place among all, which the phone has in its status bar
    title.setGeometry(0, 107, 384, 27);
    QObject::connect(
        peer.list.selectionModel(), &QItemSelectionModel::currentChanged, &title,
        [&title](const QModelIndex &at) { title.setText(QString("Contacts | All (%1/300)").arg(at.row() + 1)); });
    peer.show();
    press(state, &peer.window, Qt::Key_Right, Qt::Key_Left, GridColumnSteps);
}

void list(benchmark::State &state)
{
    makeTeam();
    GroupDetail screen(nullptr, teamId());
    show(&screen);
    press(state, &screen, Qt::Key_Down, Qt::Key_Up, ListSteps);
}

void qtList(benchmark::State &state)
{
    makeTeam();
    const GroupDetail screen(nullptr, teamId());
    Peer peer(rowsOf(screen));
    peer.show();
    press(state, &peer.window, Qt::Key_Down, Qt::Key_Up, ListSteps);
}

void form(benchmark::State &state)
{
    NumberEdit screen(nullptr, makeTeam(), QString(), -1);
    show(&screen);
    press(state, &screen, Qt::Key_Down, Qt::Key_Up, FormSteps);
}

void qtForm(benchmark::State &state, QListView::EditTrigger editing)
{
    const NumberEdit screen(nullptr, makeTeam(), QString(), -1);
    Peer peer(rowsOf(screen));
    peer.list.setEditTriggers(editing);
    peer.show();
    press(state, &peer.window, Qt::Key_Down, Qt::Key_Up, FormSteps);
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        add("key-grid/ours", grid, 300, Passes300);
        add("key-grid/QListView", qtGrid, 300, Passes300);
        add("key-list/ours", list, 300, Passes300);
        add("key-list/QListView", qtList, 300, Passes300);
        add("key-form/ours", form, 16, PassesForm);
        add(
            "key-form/QListView", [](auto &state) { qtForm(state, QListView::NoEditTriggers); }, 16, PassesForm);
        add(
            "key-form/with editor", [](auto &state) { qtForm(state, QListView::CurrentChanged); }, 16, PassesForm);
    });
}
