// tests/galerie/BancPageRecherche.h
#pragma once

#include "PageRecherche.h"

#include "ApercuFenetre.h"
#include "ChampMots.h"
#include "TraceSignaux.h"

#include "lists/ListeChoixFlottante.h"
#include "noyau/Traductions.h"
#include "search/BarreRecherche.h"
#include "search/DialogueRechercher.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

// No-break spaces are part of a French text.
inline QString const kTexte = u"Un chien\u00A0: deux chiens.\nUn chat ; trois chiens.\n"_s;

/// A page over a text and a list of words of its own.
class BancPageRecherche
{
protected:
    void Prepare();
    void Range();
    void Montre();
    QString Ecris(QString const & nom, QString const & texte);
    void Appuie(QString const & bouton);
    void Choisis(QString const & fichier);
    template <typename Type>
    Type & Prete(QString const & nom = {}) const;
    QLineEdit & PreteChamp(QWidget const & barre) const;
    QString DonneCompteur() const;
    QStringList DonneTrace() const;
    QStringList DonneMessages() const;
    bool MontreMessage() const;
    void Remplace(QString const & fichier, QString const & paquet);

    QTemporaryDir monDossier;
    std::unique_ptr<PageRecherche> maPage;
};

inline void BancPageRecherche::Prepare()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    PageRecherche::PreteMemoire() = {};
    PageRecherche::PreteMemoire().fichier = Ecris(u"texte.txt"_s, kTexte);
    PageRecherche::PreteMemoire().mots.MetsFichier(Ecris(u"mots"_s, u"été\nétés\n"_s));
    maPage = std::make_unique<PageRecherche>();
}

inline void BancPageRecherche::Range()
{
    maPage.reset();
    // The menu of a search bar dies later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

inline void BancPageRecherche::Montre()
{
    maPage->resize(900, 700);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
}

inline QString BancPageRecherche::Ecris(QString const & nom, QString const & texte)
{
    QFile fichier(monDossier.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        return {};
    return fichier.fileName();
}

inline void BancPageRecherche::Appuie(QString const & bouton)
{
    QTest::mouseClick(&Prete<QPushButton>(bouton), Qt::LeftButton);
}

// In the file dialog, which this opens.
inline void BancPageRecherche::Choisis(QString const & fichier)
{
    Appuie(u"ouvrir"_s);
    auto & dialogue = Prete<QFileDialog>();
    dialogue.selectFile(fichier);
    QMetaObject::invokeMethod(&dialogue, "accept");
}

template <typename Type>
Type & BancPageRecherche::Prete(QString const & nom) const
{
    auto * const objet = maPage->findChild<Type *>(nom);
    Q_ASSERT(objet);
    return *objet;
}

inline QLineEdit & BancPageRecherche::PreteChamp(QWidget const & barre) const
{
    return *barre.findChild<QLineEdit *>(u"ChampTexteRecherche"_s);
}

inline QString BancPageRecherche::DonneCompteur() const
{
    return Prete<BarreRecherche>().findChild<QLabel *>()->text();
}

inline QStringList BancPageRecherche::DonneTrace() const
{
    return Prete<TraceSignaux>().toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

// Those that can be seen.
inline QStringList BancPageRecherche::DonneMessages() const
{
    QStringList messages;
    for (auto const * const message : maPage->findChildren<QLabel *>(u"messageErreur"_s))
        if (!message->isHidden() && !message->text().isEmpty())
            messages.append(message->text());
    return messages;
}

inline bool BancPageRecherche::MontreMessage() const
{
    return !DonneMessages().isEmpty();
}

// The page by one without words that begins with `fichier`, which comes with `paquet`.
inline void BancPageRecherche::Remplace(QString const & fichier, QString const & paquet)
{
    maPage.reset();
    PageRecherche::PreteMemoire() = {};
    PageRecherche::PreteMemoire().fichier = fichier;
    PageRecherche::PreteMemoire().paquet = paquet;
    PageRecherche::PreteMemoire().mots.MetsFichier(monDossier.filePath(u"absent"_s));
    maPage = std::make_unique<PageRecherche>();
}
