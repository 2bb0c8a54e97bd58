// From a key in the search line to the finished frame, beside a filtered model in Qt's own list.
//
// Each pass is one key: words are typed letter by letter and erased again.

#include "phonebench.h"
#include "phonekeys.h"
#include "searchall.h"

#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

using namespace PhoneBench;

/// The keys of one round: every letter of every word, and as many times Backspace.
QStringList keys()
{
    QStringList keys;
    for (const QString &word :
         {QString("anna"), QString("kowalski"), QString("müller"), QString("김철"), QString("ㄱㅊㅅ"),
          QString("орл"), QString("ea"), QString("0104"), QString("555"), QString("qxq")}) {
        for (const QChar letter : word)
            keys.append(letter);
        for (int i = 0; i < word.size(); ++i)
            keys.append(QString());
    }
    return keys;
}

/// Presses one key after the other, each timed until what it changed is painted.
void type(benchmark::State &state, QWidget *window)
{
    const QStringList round = keys();
    Passes passes(state);
    FrameWatch frame(window);
    int next = 0;
    for (auto _ : state) {
        const QString letter = round.at(next++ % round.size());
        const int code = letter.isEmpty() ? int(Qt::Key_Backspace) : letter.at(0).toUpper().unicode();
        const Stopwatch watch;
        if (!pressKey(frame, code, letter))
            state.SkipWithError("nothing was painted");
        passes.add(watch);
        QCoreApplication::processEvents(); // what is put off until after the frame
    }
    passes.report();
}

void searchScreen(benchmark::State &state)
{
    phoneWith(int(state.range(0)));
    SearchAll screen(nullptr, SearchAll::ViewMode, QString());
    PhoneKeys::showAndActivate(&screen);
    QCoreApplication::processEvents();
    type(state, &screen);
}

void proxyModel(benchmark::State &state)
{
    const Core &core = phoneWith(int(state.range(0))).core;
    QStandardItemModel model;
    const QList<ContactData> contacts
        = core.contactManager()->getAllContacts() + core.wpsmContactManager()->getAllContacts();
    for (const ContactData &contact : contacts) {
        for (int slot = 0; slot < ContactData::NumberCount; ++slot) {
            if (!contact.number(slot).isEmpty())
                model.appendRow(new QStandardItem(contact.name + ' ' + contact.number(slot)));
        }
    }
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&model);

    QWidget window;
    window.setFixedSize(384, 134);
    QVBoxLayout layout(&window);
    QLineEdit line;
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&proxy);
    layout.addWidget(&line);
    layout.addWidget(&list);
    QObject::connect(&line, &QLineEdit::textChanged, &proxy, &QSortFilterProxyModel::setFilterFixedString);
    PhoneKeys::showAndActivate(&window);
    line.setFocus();
    QCoreApplication::processEvents();
    type(state, &window);
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        const int round = keys().size();
        for (const int count : {300, 10000, 100000}) {
            add("search/ours", searchScreen, count, (count > 10000 ? 5 : 20) * round);
            // Of 100 000 the model takes a minute for some keys.
            if (count <= 10000)
                add("search/QSortFilterProxyModel", proxyModel, count, 2 * round);
        }
    });
}
