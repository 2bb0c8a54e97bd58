#include "soundselectpopup.h"

#include "core.h"
#include "soundmanager.h"

SoundSelectPopup::~SoundSelectPopup()
{
    // One that is deleted while it shows hides as a plain dialog.
    if (QWidget::isVisible())
        theCore->soundManager()->setEnableKeytone(true);
}

void SoundSelectPopup::showEvent(QShowEvent *)
{
    theCore->soundManager()->setEnableKeytone(false);
}

void SoundSelectPopup::hideEvent(QHideEvent *)
{
    theCore->soundManager()->setEnableKeytone(true);
}
