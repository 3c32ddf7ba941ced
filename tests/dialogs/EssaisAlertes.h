// dialogs/EssaisAlertes.h
#pragma once

#include "dialogs/EssaisBoites.h"
#include "dialogs/EssaisStockage.h"

#include "noyau/ExecutionSilencieuse.h"
#include "noyau/JournalSimulay.h"
#include "noyau/Traductions.h"
#include "outils/BureauSimulay.h"

#include <QCheckBox>
#include <QDeadlineTimer>
#include <QPointer>
#include <QTest>

// What the tests of all alerts share.
namespace EssaisAlertes {

inline constexpr int kDelaiRepondant = 1;    // ms between two looks at the screen
inline constexpr int kDelaiAbandon = 10'000; // ms until a box that nobody answers is given up

/// The top-level windows of a class, hidden ones too.
template <typename T>
QList<T *> Fenetres()
{
    QList<T *> trouvees;
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const voulue = qobject_cast<T *>(fenetre))
            trouvees.append(voulue);
    return trouvees;
}

/// What a failed test leaves on screen: the next one is not to fail for it.
inline void RetireRestes()
{
    if (QTest::currentTestFailed())
        qDeleteAll(Fenetres<QDialog>());
}

/// The message box that the user has in front, or null.
inline DMessageBox * BoiteDevant()
{
    auto * const modale = qobject_cast<DMessageBox *>(QApplication::activeModalWidget());
    return modale && modale->isVisible() ? modale : DonneBoiteVisible();
}

/// At its indicator: the text may end anywhere.
inline void Coche(QMessageBox const & boite)
{
    if (auto * const laCase = boite.findChild<QCheckBox *>(QStringLiteral("NePlusMAviser")))
        QTest::mouseClick(laCase, Qt::LeftButton, {}, QPoint(6, laCase->height() / 2));
}

inline void Clique(QAbstractButton * bouton)
{
    if (bouton)
        QTest::mouseClick(bouton, Qt::LeftButton);
}

/// As from the keyboard: to the window, which hands it to what has the focus.
inline void Tape(QWidget & fenetre, Qt::Key touche, Qt::KeyboardModifiers modificateurs = {})
{
    QTest::keyClick(fenetre.windowHandle(), touche, modificateurs);
}

/// The user: does something to each message box in front, once, from the event loop.
///
/// A box that stays on screen for `kDelaiAbandon` is taken away, so that a call that blocks for
/// ever fails its test instead of all tests.
class Repondant : public QObject
{
public:
    using Action = std::function<void(DMessageBox &)>;

    explicit Repondant(Action action)
        : monAction(std::move(action))
    {
        Regarde();
        QTimer::singleShot(kDelaiAbandon, this, &Repondant::Abandonne);
    }

    int DonneNombre() const { return static_cast<int>(mesBoites.size()); }

private:
    void Regarde()
    {
        // A timer anew each time: a repeating one rests while an alert blocks inside the action.
        QTimer::singleShot(kDelaiRepondant, this, &Repondant::Regarde);
        DMessageBox * const boite = BoiteDevant();
        if (!boite || mesBoites.contains(boite))
            return;
        mesBoites.append(boite);
        monAction(*boite);
    }

    static void Abandonne()
    {
        for (DMessageBox * const boite : Fenetres<DMessageBox>()) {
            qWarning("a message box was left unanswered");
            boite->QDialog::done(0);
        }
    }

    Action monAction;
    QList<QPointer<DMessageBox>> mesBoites;
};

/// Turns the event loop until no box is left; false when one stays. In finer steps than `QTRY_…`
/// takes, for tests with hundreds of rows.
inline bool AttendsFinDesBoites()
{
    QDeadlineTimer const fin(kDelaiAbandon);
    while (!Fenetres<DMessageBox>().isEmpty() && !fin.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, kDelaiRepondant);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return Fenetres<DMessageBox>().isEmpty();
}

inline QList<int> DonneReponses(ReceveurNotant const & receveur)
{
    QList<int> reponses;
    for (auto const & [identifiant, reponse] : receveur.reponses)
        reponses << reponse;
    return reponses;
}

/// A process without remembered answers in which nothing is silent and French is spoken, with a
/// journal and a desktop of its own, for as long as it lives.
class Banc
{
public:
    Banc()
    {
        auto leBureau = std::make_unique<BureauSimulay>();
        bureau = leBureau.get();
        PlateformeBureau::Installe(std::move(leBureau));
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    }
    Banc(Banc const &) = delete;
    Banc & operator=(Banc const &) = delete;
    ~Banc()
    {
        ExecutionSilencieuse::Arrete();
        ExecutionSilencieuse::OublieDialoguesJournalises();
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        PlateformeBureau::Installe(nullptr);
    }

    EssaisStockage stockage;
    BureauSimulay * bureau = nullptr;
    JournalSimulay journal;
};

} // namespace EssaisAlertes
