// navigation/RangeeDEssai.h
#pragma once

#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QtTest>
#include <QtWidgets>

/// A window with nothing but a row of tabs at its top, and a mouse that tells only the bar.
class RangeeDEssai : public QWidget
{
public:
    explicit RangeeDEssai(int nombre = 0, UniChaine const & groupe = "groupe",
                          QPoint const & place = {40, 40}, int largeur = 600)
        : rangee(new DTabBar(nullptr, groupe))
        , barre(rangee->PreteBarreInterne())
    {
        auto * const layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(rangee);
        layout->addStretch();
        barre->MetsPeutGlisserDeposer(true);
        for (int i = 0; i < nombre; ++i)
            AjouteOnglet(QStringLiteral("Onglet %1").arg(i));
        setGeometry(QRect(place, QSize(largeur, 80)));
    }

    /// As a tab widget adds one.
    int AjouteOnglet(QString const & titre) { return InsereOnglet(barre->count(), titre); }
    int InsereOnglet(int position, QString const & titre)
    {
        int const index = barre->InsereOngletVide(position);
        barre->CreeCadreOnglet(index);
        barre->MetsTitreOnglet(index, titre);
        auto * const bouton = new QToolButton;
        bouton->setFixedSize(16, 16);
        barre->PoseBouton(index, QTabBar::RightSide, bouton);
        barre->AjusteLargeurTitre(index);
        barre->setTabToolTip(index, QStringLiteral("Infobulle de ") + titre);
        return index;
    }
    void Expose()
    {
        show();
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }

    DLabelElision * PreteTitre(int index) const { return barre->DonneInfos(index).etiquetteTitre; }
    QStringList DonneInfobulles() const
    {
        QStringList infobulles;
        for (int i = 0; i < barre->count(); ++i)
            infobulles << barre->tabToolTip(i);
        return infobulles;
    }
    /// The title of the tab, from its record.
    QString DonneTitre(int index) const { return barre->DonneInfos(index).titre; }

    /// In global coordinates: a point of the tab, in its first or second half.
    QPoint DonnePoint(int index, double part = 0.25) const
    {
        QRect const rect = barre->tabRect(index);
        return barre->mapToGlobal(
            QPoint(rect.left() + int(rect.width() * part), rect.center().y()));
    }
    QPoint DonneAuDessous() const
    {
        return barre->mapToGlobal(QPoint(barre->width() / 2, barre->height() + 20));
    }

    void Presse(int index, Qt::MouseButton bouton = Qt::LeftButton)
    {
        Envoie(QEvent::MouseButtonPress, DonnePoint(index), bouton, bouton);
    }
    void Deplace(QPoint const & global)
    {
        Envoie(QEvent::MouseMove, global, Qt::NoButton, Qt::LeftButton);
    }
    void Relache(QPoint const & global, Qt::MouseButton bouton = Qt::LeftButton)
    {
        Envoie(QEvent::MouseButtonRelease, global, bouton, Qt::NoButton);
    }
    void Envoie(QEvent::Type type, QPoint const & global, Qt::MouseButton bouton,
                Qt::MouseButtons enfonces)
    {
        QMouseEvent evenement(type, barre->mapFromGlobal(global), global, bouton, enfonces,
                              Qt::NoModifier);
        QApplication::sendEvent(barre, &evenement);
    }

    DTabBar * rangee;
    DTabBarInterne * barre;
};

/// The picture that follows the mouse, while one is shown.
inline QWidget * TrouveFantome()
{
    QWidgetList const widgets = QApplication::topLevelWidgets();
    for (QWidget * const widget : widgets)
        if (widget->isVisible() && widget->windowType() == Qt::Tool)
            return widget;
    return nullptr;
}
