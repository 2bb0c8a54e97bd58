#ifndef SOUNDSELECTPOPUP_H
#define SOUNDSELECTPOPUP_H

#include "selectpopup.h"

/// A choice of sounds. The keys are silent while it shows, so that they do not mix with what its owner plays.
class SoundSelectPopup : public SelectPopup
{
    Q_OBJECT

public:
    using SelectPopup::SelectPopup;
    ~SoundSelectPopup() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};

#endif
