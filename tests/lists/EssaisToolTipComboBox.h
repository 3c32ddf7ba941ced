// tests/lists/EssaisToolTipComboBox.h
#pragma once

#include "lists/ToolTipComboBox.h"

#include "noyau/Traductions.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace EssaisToolTipComboBox {

using namespace Qt::StringLiterals;

inline QComboBox * CreeCombo(int nombre = 3)
{
    auto * const combo = new QComboBox;
    for (int i = 0; i < nombre; ++i)
        combo->addItem(u"choix %1"_s.arg(i), 100 + i);
    return combo;
}

inline QPushButton * Bouton(ToolTipComboBox const & popUp)
{
    return popUp.findChild<QPushButton *>(u"BoutonDesactiverFiltre"_s);
}

inline QVBoxLayout * Rangees(ToolTipComboBox const & popUp)
{
    auto const * const grille = qobject_cast<QGridLayout *>(popUp.layout());
    return qobject_cast<QVBoxLayout *>(grille->itemAtPosition(0, 0)->layout());
}

template <typename T>
T * Piece(ToolTipComboBox const & popUp, int rangee, int rang)
{
    QLayout * const boite = Rangees(popUp)->itemAt(rangee)->layout();
    return boite->itemAt(rang) ? qobject_cast<T *>(boite->itemAt(rang)->widget()) : nullptr;
}

// What the pop-up has told, in order: "id:index" and "+" or "-" for active or not.
class Ecoute : public QObject
{
public:
    explicit Ecoute(ToolTipComboBox & popUp)
    {
        connect(&popUp, &ToolTipComboBox::SignalValeurChanger, this,
                [this](int id, int index) { dits << u"%1:%2"_s.arg(id).arg(index); });
        connect(&popUp, &ToolTipComboBox::SignalFiltreActif, this,
                [this](bool actif) { dits << (actif ? u"+"_s : u"-"_s); });
    }

    QStringList Prends() { return std::exchange(dits, {}); }

private:
    QStringList dits;
};

} // namespace EssaisToolTipComboBox
