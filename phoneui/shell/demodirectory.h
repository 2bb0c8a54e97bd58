#ifndef DEMODIRECTORY_H
#define DEMODIRECTORY_H

#include <QString>

class PhoneHome;

/// The directory server that runs for demonstration beside the phone, at another port each time.
class DemoDirectory
{
public:
    /// `text` is "ID:PASSWORD@ADDRESS"; one that is none leaves the object invalid.
    explicit DemoDirectory(const QString &text);

    bool isValid() const { return !m_password.isEmpty() && !m_address.isEmpty(); }
    /// Provisions a new home for it, and leads one that was provisioned for it to where it is now. A home with a
    /// directory of its own stays as it is.
    void provision(const PhoneHome &home, bool isNew) const;

private:
    QString m_id, m_password, m_address;
};

#endif
