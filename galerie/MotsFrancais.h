// galerie/MotsFrancais.h
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <utility>
#include <vector>

/// A list of words, one per line, that proposes those that begin as a text does, whatever the case,
/// the accents, and the hyphens and apostrophes between.
///
/// The file is read on the first question, or by `Charge` at a moment when nobody waits.
class MotsFrancais
{
public:
    MotsFrancais();
    explicit MotsFrancais(QString fichier);

    /// Debian's word list, of the package `wfrench`.
    static QString DonneFichierParDefaut();

    /// Another list, which is read in its turn when it is asked for.
    void MetsFichier(QString const & fichier);
    /// False without words: the file is missing or cannot be read.
    bool Charge();
    /// The first `combien` of the words that begin as `debut`, in alphabetical order; none for a
    /// text without letters or digits.
    QStringList Propose(QString const & debut, int combien);
    /// How many words begin as `debut`.
    int Compte(QString const & debut);
    /// Whether it is a word of the list, in upper or lower case, but with its accents, hyphens and
    /// apostrophes. Two letters in one, as in "œuvre", may stand apart.
    bool Contient(QString const & mot);

private:
    // Places in the texts below.
    struct Entree
    {
        qsizetype mot;
        qsizetype cle;
        int longueurMot;
        int longueurCle;
    };
    using Iterateur = std::vector<Entree>::const_iterator;

    void Decoupe();
    void AjouteEntree(qsizetype debut, qsizetype fin, qsizetype cle);
    QStringView DonneMot(Entree const & entree) const;
    QStringView DonneCle(Entree const & entree) const;
    std::pair<Iterateur, Iterateur> Trouve(QString const & debut);

    QString monFichier;
    bool monChargement = false;
    QString mesMots;
    QString mesCles; // what the words are sorted by and compared as
    std::vector<Entree> mesEntrees;
};
