// search/EssaisDialogue.h
#pragma once

#include "search/DialogueRechercher.h"
#include "search/HoteEspion.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QTest>

// What the tests of the search dialog share.
namespace EssaisDialogue {

inline constexpr short kToutOffrir = 0x3ff;

/// An option that the dialog offers, with its text.
struct OptionOfferte
{
    short bit;
    char const * nom;
    QString fr;
    QString en;
};

inline QList<OptionOfferte> Options()
{
    return {
        {0x001, "CaseMotEntier", QStringLiteral("mot entier"), QStringLiteral("whole word")},
        {0x002, "CaseCasse", QStringLiteral("sensible à la casse"),
         QStringLiteral("case sensitive")},
        {0x004, "CaseBoucler", QStringLiteral("boucler"), QStringLiteral("wraparound")},
        {0x010, "ChoixHaut", QStringLiteral("vers le haut"), QStringLiteral("upward")},
        {0x020, "ChoixBas", QStringLiteral("vers le bas"), QStringLiteral("downward")},
        {0x040, "ChoixCommencePar", QStringLiteral("commence par"), QStringLiteral("starts with")},
        {0x100, "ChoixContient", QStringLiteral("contient"), QStringLiteral("contains")},
    };
}

/// A control of the dialog by its object name, or null.
template <typename T = QAbstractButton>
T * Controle(QWidget const & dialogue, char const * nom)
{
    return dialogue.findChild<T *>(QLatin1StringView(nom), Qt::FindDirectChildrenOnly);
}

/// Whether the button, which may be null, can be pressed.
inline bool EstActif(QWidget const & dialogue, char const * nom)
{
    auto const * const bouton = Controle(dialogue, nom);
    return bouton && bouton->isEnabled();
}

/// Clicks at the indicator, for the text of an option may end anywhere.
inline void Clique(QWidget const & dialogue, char const * nom)
{
    auto * const bouton = Controle(dialogue, nom);
    QVERIFY2(bouton, nom);
    bool const estBouton = qobject_cast<QPushButton *>(bouton) != nullptr;
    QTest::mouseClick(bouton, Qt::LeftButton, {},
                      estBouton ? QPoint() : QPoint(6, bouton->height() / 2));
}

/// A shown dialog, empty or with "texte" to search for, and the host that it calls.
class Banc
{
public:
    explicit Banc(short masque = kToutOffrir, QString const & texte = QStringLiteral("texte"))
        : dialogue(new DialogueRechercher(nullptr, true, masque))
        , hote(dialogue)
    {
        dialogue->PrendsChaineRecherche(texte);
        dialogue->AfficheToi();
    }
    Banc(Banc const &) = delete;
    Banc & operator=(Banc const &) = delete;
    ~Banc()
    {
        delete dialogue;
        hote.OublieRecherche();
    }

    QPointer<DialogueRechercher> dialogue;
    HoteEspion hote;
};

} // namespace EssaisDialogue
