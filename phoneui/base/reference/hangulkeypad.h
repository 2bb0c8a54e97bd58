#ifndef HANGULKEYPAD_H
#define HANGULKEYPAD_H

#include "composer.h"

#include <QByteArray>
#include <QVector>

#include <hangul.h>

#include <memory>

/// Korean on ten keys. The keys 1, 2 and 3 are the strokes ㅣ, ㆍ and ㅡ, of which every vowel is put together: 1 2
/// is ㅏ, 2 1 is ㅓ, 2 3 is ㅗ, 3 2 is ㅜ. The other keys hold two or three consonants each, by tapping. libhangul
/// makes syllables of the letters; what it may still change is pending, with the consonant that may yet belong to
/// it.
class HangulKeypad : public Composer
{
public:
    HangulKeypad();

    QString press(int key, int room) override;
    QString pending() const override;
    bool outlivesPause() const override { return true; }
    void endTap() override { m_tapOpen = false; }
    void erase() override;
    void clear() override;

private:
    struct Letter
    {
        QByteArray strokes; ///< of a vowel: its keys; empty for a consonant
        int key = 0;
        int tap = 0;
    };
    struct Text
    {
        QString closed, open; ///< syllables that are complete, and the one under way
    };

    static QByteArray libraryKeys(const Letter &letter);
    /// A vowel of "ㆍ" alone, which no Korean syllable has: a further stroke is missing.
    static bool isUnfinished(const Letter &letter);
    static int consonantCount(int key);
    QString begin(const Letter &letter);
    void nextConsonant(int room);
    bool addStroke(int key);
    QString takeClosed();
    Text compose(const QVector<Letter> &letters) const;
    int expectedLength() const;

    std::unique_ptr<HangulInputContext, void (*)(HangulInputContext *)> m_context;
    QVector<Letter> m_letters; ///< those that are pending
    bool m_tapOpen = false;
};

#endif
