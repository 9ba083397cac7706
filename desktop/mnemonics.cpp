// Giving out the letters: each caption takes the best one that can be made free for it.
#include "desktop/mnemonics.h"

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace navarun::desktop {

namespace {

QChar letter_at(QString const& caption, qsizetype place) { return caption.at(place).toLower(); }

// Places of the letters that may be marked, the best first.
std::vector<qsizetype> choices_of(QString const& caption) {
    std::vector<qsizetype> places;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i).isLetterOrNumber()) places.push_back(i);
    }
    auto const rank = [&](qsizetype place) {
        bool const starts_a_word = place == 0 || caption.at(place - 1).isSpace();
        bool const on_every_keyboard = caption.at(place).unicode() < 128;
        return std::pair{!on_every_keyboard, place == 0 ? 0 : starts_a_word ? 1 : 2};
    };
    std::ranges::stable_sort(places, {}, rank);
    return places;
}

// "&&" is a plain ampersand.
qsizetype own_mark(QString const& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption.at(i) != QLatin1Char('&')) continue;
        if (caption.at(i + 1) != QLatin1Char('&')) return i;
        ++i;
    }
    return -1;
}

class Letters {
  public:
    explicit Letters(QStringList const& captions) : m_captions{captions} {
        for (auto const& caption : captions) {
            auto const mark = own_mark(caption);
            if (mark >= 0) m_kept.insert(letter_at(caption, mark + 1));
        }
    }

    // Finds a letter for a caption; those before give way where they have another.
    bool find_for(qsizetype caption) {
        std::set<QChar> asked;
        return find_for(caption, asked);
    }

    QStringList marked() const {
        QStringList texts = m_captions;
        for (auto const& [letter, owner] : m_owners) {
            texts[owner.caption].insert(owner.place, QLatin1Char('&'));
        }
        return texts;
    }

  private:
    struct Owner {
        qsizetype caption;
        qsizetype place;
    };

    bool find_for(qsizetype caption, std::set<QChar>& asked) {
        auto const places = choices_of(m_captions[caption]);
        for (auto const place : places) {
            QChar const letter = letter_at(m_captions[caption], place);
            if (m_kept.contains(letter) || m_owners.contains(letter)) continue;
            m_owners[letter] = {caption, place};
            return true;
        }
        for (auto const place : places) {
            QChar const letter = letter_at(m_captions[caption], place);
            if (m_kept.contains(letter) || !asked.insert(letter).second) continue;
            if (!find_for(m_owners.at(letter).caption, asked)) continue;
            m_owners[letter] = {caption, place};
            return true;
        }
        return false;
    }

    QStringList m_captions;
    std::set<QChar> m_kept;  // by captions with a mark of their own
    std::map<QChar, Owner> m_owners;
};

}  // namespace

QStringList with_mnemonics(QStringList const& captions) {
    Letters letters{captions};
    for (qsizetype i = 0; i < captions.size(); ++i) {
        if (own_mark(captions[i]) < 0) letters.find_for(i);
    }
    return letters.marked();
}

}  // namespace navarun::desktop
