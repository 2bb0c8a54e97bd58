#include "callmanager.h"

void CallManager::setCallState(const QString &state)
{
    if (state == m_callState)
        return;
    m_callState = state;
    emit callStateChanged(state);
}

QString getCallMode()
{
    return QStringLiteral("AUDIO");
}
