// tests/controls/EssaisBouton.h
#pragma once

#include "controls/DCheckBox.h"
#include "controls/DRadioButton.h"

#include <QtTest>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

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

/// What was to die later does so now.
inline void DetruisAttente()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace EssaisBouton

Q_DECLARE_METATYPE(EssaisBouton::eGenre)
