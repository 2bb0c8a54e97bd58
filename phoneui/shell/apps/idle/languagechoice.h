#ifndef LANGUAGECHOICE_H
#define LANGUAGECHOICE_H

#include <QPointer>

class BaseWidget;
class SelectPopup;

/// Lets the user choose the phone's language, from a popup that calls each by its own name.
class LanguageChoice
{
public:
    /// Returns when the popup has gone.
    void run(BaseWidget *screen);

private:
    QPointer<SelectPopup> m_popup;
};

#endif
