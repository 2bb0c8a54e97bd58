#include "ui_status.h"

#include "timelabel.h"
#include "titlelabel.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

/// The pictures of the indicators that are only on or off; the others get theirs with their value.
struct FixedPicture
{
    Ui_Status::Icon icon;
    const char *picture;
};
const FixedPicture fixedPictures[] = {
    {Ui_Status::Lock, "status_lock"},
    {Ui_Status::CallLock, "status_call_lock"},
    {Ui_Status::CallForward, "status_call_forward"},
    {Ui_Status::Dnd, "status_dnd"},
    {Ui_Status::AutoAnswer, "status_auto_answer"},
    {Ui_Status::CallHold, "status_call_hold"},
    {Ui_Status::Upgrade, "status_upgrade"},
    {Ui_Status::ConnectMobile, "status_mobile"},
    {Ui_Status::ConnectAom, "status_aom"},
    {Ui_Status::ConnectNvc, "status_nvc"},
    {Ui_Status::Call, "status_call"},
};

constexpr int LeftGap = 8, RightGap = 8; // the bar's text stands over the soft keys' edges

}

void Ui_Status::setupUi(QLabel *status)
{
    auto *row = new QHBoxLayout(status);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addSpacing(LeftGap - row->spacing());

    titleLabel = new TitleLabel(status);
    titleLabel->setObjectName("titleLabel");
    // The title takes what the others leave; its padding must not push them out.
    titleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(titleLabel, 1);

    for (QLabel *&icon : icons) {
        icon = new QLabel(status);
        icon->setAlignment(Qt::AlignCenter);
        row->addWidget(icon);
    }
    for (const FixedPicture &fixed : fixedPictures)
        icons[fixed.icon]->setPixmap(QPixmap(QString(":/ui/images/title/%1.png").arg(fixed.picture)));

    timeLabel = new TimeLabel(status);
    timeLabel->setObjectName("timeLabel");
    row->addSpacing(4);
    row->addWidget(timeLabel);
    row->addSpacing(RightGap - row->spacing());
    retranslateUi(status);
}

void Ui_Status::retranslateUi(QLabel *status)
{
    status->setWindowTitle("Status");
}
