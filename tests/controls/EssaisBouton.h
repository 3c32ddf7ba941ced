// tests/controls/EssaisBouton.h
#pragma once

#include "controls/DCheckBox.h"
#include "controls/DRadioButton.h"

#include <QtTest>

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <memory>

// What the tests of the check box and of the radio button share.
namespace EssaisBouton {

enum eGenre
{
    kCase,
    kRadio
};

/// A row for each of the two classes.
inline void AjouteGenres()
{
    QTest::addColumn<eGenre>("genre");
    QTest::newRow("check box") << kCase;
    QTest::newRow("radio button") << kRadio;
}

inline DBoutonAbstrait * Cree(eGenre genre, QString const & texte, QWidget * parent = nullptr,
                              bool cochay = false)
{
    if (genre == kCase)
        return new DCheckBox(texte, parent, cochay);
    return new DRadioButton(texte, parent, cochay);
}

inline QAbstractButton & Indicateur(DBoutonAbstrait const & controle)
{
    return *controle.findChild<QAbstractButton *>();
}

inline QLabel & Libelle(DBoutonAbstrait const & controle)
{
    return *controle.findChild<QLabel *>();
}

/// By hand: the label may be gone afterwards.
inline void RelacheSurLibelle(DBoutonAbstrait const & controle)
{
    QMouseEvent relache(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, {});
    QCoreApplication::sendEvent(&Libelle(controle), &relache);
}

/// What was to die later does so now.
inline void DetruisAttente()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Deletes the window as a receiver that asks the user something may: in an event loop of its own,
/// which also does what was to be done later.
inline void SupprimeDansUneBoucle(QPointer<QWidget> const & fenetre)
{
    QEventLoop boucle;
    QTimer::singleShot(0, &boucle, [&boucle, &fenetre] {
        delete fenetre.data();
        QMetaObject::invokeMethod(&boucle, &QEventLoop::quit, Qt::QueuedConnection);
    });
    boucle.exec();
}

} // namespace EssaisBouton

Q_DECLARE_METATYPE(EssaisBouton::eGenre)
