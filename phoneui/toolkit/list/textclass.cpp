#include "textclass.h"

textClass::textClass(QString const &text) : m_text(text) { }
