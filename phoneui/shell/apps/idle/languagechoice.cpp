#include "languagechoice.h"

#include "core.h"
#include "imagebutton.h"
#include "listviewradioitem.h"
#include "screenwatch.h"
#include "selectpopup.h"

namespace {

struct LanguageWords
{
    const char *name;
    const char *ownName;
};
constexpr LanguageWords languages[] = {
    {"ko_KR", "한국어"},   {"en_US", "English"}, {"de_DE", "Deutsch"}, {"es_ES", "Español"},
    {"it_IT", "Italiano"}, {"ru_RU", "Русский"}, {"tr_TR", "Türkçe"},
};

SelectPopup *makePopup(QWidget *parent)
{
    static constexpr int PopupType = 2;
    const QString current = theCore->languageName();
    auto *popup = new SelectPopup(parent, PopupType);
    ListView *list = popup->listView();
    for (const LanguageWords &language : languages) {
        const bool isCurrent = current == QLatin1String(language.name);
        list->addItem(new ListViewRadioItem(QString::fromUtf8(language.ownName), isCurrent));
        if (isCurrent)
            list->setSelectedIdx(list->itemSize() - 1);
    }
    popup->nextButton()->setText(">>");
    return popup;
}

}

void LanguageChoice::run(BaseWidget *screen)
{
    runScreen(
        m_popup, screen, [screen] { return makePopup(screen); },
        [](SelectPopup *popup) {
            const int idx = popup->selectedIdx();
            if (popup->result() == QDialog::Accepted && idx >= 0)
                theCore->setLanguageName(languages[idx].name);
        });
}
