// A screen made, shown until its first frame, closed and deleted, beside a QDialog with the same rows in a
// QListWidget.

#include "detailsdial.h"
#include "groupdetail.h"
#include "listview.h"
#include "listviewcontactitem.h"
#include "listviewlineedititem.h"
#include "listviewselectitem.h"
#include "numberedit.h"
#include "phonebench.h"

#include <QListWidget>

namespace {

using namespace PhoneBench;

constexpr int Rounds = 100;

template <typename Make> void openAndClose(benchmark::State &state, Make make)
{
    Passes passes(state);
    for (auto _ : state) {
        const Stopwatch watch;
        {
            const std::unique_ptr<QDialog> screen(make());
            FrameWatch frame(screen.get());
            screen->show();
            if (!frame.waitForFrame())
                state.SkipWithError("nothing was painted");
            screen->close();
        }
        QCoreApplication::processEvents();
        passes.add(watch);
    }
    passes.report();
}

QDialog *details()
{
    return new DetailsDial(nullptr, makeTeam(), ContactData::LocalContact);
}

QDialog *form()
{
    return new NumberEdit(nullptr, makeTeam(), QString(), -1);
}

QDialog *group()
{
    makeTeam();
    return new GroupDetail(nullptr, theCore->contactManager()->getAllGroups(true).last().id);
}

/// What the rows of the screen say.
QStringList texts(const QDialog &screen)
{
    QStringList texts;
    auto *list = screen.findChild<ListView *>();
    for (int i = 0; i < list->itemSize(); ++i) {
        ListViewItem *row = list->item(i);
        QString text = row->text();
        if (auto *field = dynamic_cast<ListViewLineEditItem *>(row))
            text += ' ' + field->editText();
        else if (auto *choice = dynamic_cast<ListViewSelectItem *>(row))
            text += ' ' + choice->selectedText();
        else if (auto *value = dynamic_cast<ListViewContactItem *>(row))
            text.prepend(value->label() + ' ');
        texts.append(text);
    }
    return texts;
}

QDialog *dialog(const QStringList &texts)
{
    auto *dialog = new QDialog(nullptr, Qt::FramelessWindowHint);
    dialog->setGeometry(0, 26, 384, 134);
    auto *list = new QListWidget(dialog);
    list->setGeometry(5, 2, 374, 104);
    list->addItems(texts);
    return dialog;
}

void addScreen(const char *name, const char *peerName, QDialog *(*make)(), int size)
{
    add(
        name, [make](auto &state) { openAndClose(state, make); }, size, Rounds);
    add(
        peerName,
        [make, size](auto &state) {
            const QStringList rows = texts(*std::unique_ptr<QDialog>(make()));
            if (rows.size() != size)
                state.SkipWithError("the screen has another number of rows");
            openAndClose(state, [&rows] { return dialog(rows); });
        },
        size, Rounds);
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        addScreen("screen-details/ours", "screen-details/QDialog", details, 16);
        addScreen("screen-form/ours", "screen-form/QDialog", form, 16);
        addScreen("screen-group/ours", "screen-group/QDialog", group, 300);
    });
}
