// From an arrow key to the finished frame: the grid of contacts with its pages, the list of a group, the form of a
// contact; each beside a QListView whose delegate paints the same rows with the painter's own texts.
//
// The form's list has a line edit over its current row, and the QListView opens an editor there, as a form must. A
// second QListView is lent the rows of the phone, which keep their texts; a third has no editor.

#include "contact.h"
#include "groupdetail.h"
#include "listview.h"
#include "numberedit.h"
#include "phonebench.h"
#include "phonekeys.h"
#include "rowdelegates.h"

#include <QLabel>
#include <QListView>
#include <QStringListModel>

namespace {

using namespace PhoneBench;
using Rows = QVector<ListViewItem *>;

constexpr int Passes300 = 580, PassesForm = 450;
constexpr int GridColumnSteps = 98, ListSteps = 290, FormSteps = 15;

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

/// A list of Qt's own over the same rows in the same place.
struct Peer
{
    enum Texts { PaintersOwn, Kept };

    Peer(const Rows &rows, Texts texts) : phone(rows), plain(rows), list(&window)
    {
        QStringList values;
        for (ListViewItem *row : rows) {
            row->setFocus(true);
            values.append(row->text());
        }
        model.setStringList(values);
        window.setFixedSize(384, 134);
        list.setGeometry(5, 2, 374, 104);
        list.setFrameShape(QFrame::NoFrame);
        list.setModel(&model);
        list.setItemDelegate(texts == Kept ? static_cast<RowDelegate *>(&phone) : &plain);
        list.setEditTriggers(QListView::NoEditTriggers);
        list.setUniformItemSizes(true);
    }
    void run(benchmark::State &state, int onward, int back, int steps)
    {
        if (!plain.paintsAs(phone)) {
            state.SkipWithError("the rows look different");
            return;
        }
        PhoneKeys::showAndActivate(&window);
        list.setFocus();
        list.setCurrentIndex(model.index(0));
        settle();
        press(state, &window, onward, back, steps);
    }

    PhoneDelegate phone;
    PlainDelegate plain;
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

void qtGrid(benchmark::State &state, Peer::Texts texts)
{
    makeTeam();
    std::vector<std::unique_ptr<ListViewItem>> cells;
    Rows rows;
    const QList<ContactData> contacts = theCore->contactManager()->getAllContacts();
    for (const ContactData &contact : contacts) {
        cells.emplace_back(new ListViewContactGridItem(contact.name, contact.id, contact.type));
        rows.append(cells.back().get());
    }
    Peer peer(rows, texts);
    peer.list.setFlow(QListView::TopToBottom);
    peer.list.setWrapping(true);
    peer.list.setGridSize(QSize(RowDelegate::CellWidth, RowDelegate::RowHeight));
    peer.list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QLabel title(&peer.window); // the place among all, which the phone has in its status bar
    title.setGeometry(0, 107, 384, 27);
    QObject::connect(
        peer.list.selectionModel(), &QItemSelectionModel::currentChanged, &title,
        [&title](const QModelIndex &at) { title.setText(QString("Contacts | All (%1/300)").arg(at.row() + 1)); });
    peer.run(state, Qt::Key_Right, Qt::Key_Left, GridColumnSteps);
}

void list(benchmark::State &state)
{
    makeTeam();
    GroupDetail screen(nullptr, teamId());
    show(&screen);
    press(state, &screen, Qt::Key_Down, Qt::Key_Up, ListSteps);
}

void qtList(benchmark::State &state, Peer::Texts texts)
{
    makeTeam();
    const GroupDetail screen(nullptr, teamId());
    Peer peer(rowsOf(screen), texts);
    peer.run(state, Qt::Key_Down, Qt::Key_Up, ListSteps);
}

void form(benchmark::State &state)
{
    NumberEdit screen(nullptr, makeTeam(), QString(), -1);
    show(&screen);
    press(state, &screen, Qt::Key_Down, Qt::Key_Up, FormSteps);
}

void qtForm(benchmark::State &state, Peer::Texts texts, QListView::EditTrigger editing)
{
    const NumberEdit screen(nullptr, makeTeam(), QString(), -1);
    Peer peer(rowsOf(screen), texts);
    peer.list.setEditTriggers(editing);
    peer.run(state, Qt::Key_Down, Qt::Key_Up, FormSteps);
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        add("key-grid/ours", grid, 300, Passes300);
        add("key-list/ours", list, 300, Passes300);
        add("key-form/ours", form, 16, PassesForm);
        const auto addPeers = [](const std::string &side, Peer::Texts texts) {
            const auto name = [&](const char *row) { return row + side; };
            add(
                name("key-grid/").c_str(), [=](auto &state) { qtGrid(state, texts); }, 300, Passes300);
            add(
                name("key-list/").c_str(), [=](auto &state) { qtList(state, texts); }, 300, Passes300);
            add(
                name("key-form/").c_str(), [=](auto &state) { qtForm(state, texts, QListView::CurrentChanged); },
                16, PassesForm);
        };
        addPeers("QListView", Peer::PaintersOwn);
        addPeers("lent our rows", Peer::Kept);
        add(
            "key-form/without editor",
            [](auto &state) { qtForm(state, Peer::PaintersOwn, QListView::NoEditTriggers); }, 16, PassesForm);
    });
}
