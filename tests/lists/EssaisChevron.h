#pragma once

#include "lists/IWidgetChevronnable.h"
#include "lists/LayoutHorizontalAvecChevron.h"

#include <QAction>
#include <QMenu>
#include <QProxyStyle>
#include <QSpacerItem>
#include <QWidget>

/// What the tests of rows with a chevron share.
namespace EssaisChevron {

// A widget of a told size, whatever the fonts.
class Pave : public QWidget
{
public:
    explicit Pave(QSize const & taille, QWidget * parent = nullptr)
        : QWidget(parent)
        , maTaille(taille)
    {
    }
    explicit Pave(int largeur, QWidget * parent = nullptr)
        : Pave(QSize(largeur, 10), parent)
    {
    }
    QSize sizeHint() const override { return maTaille; }

private:
    QSize maTaille;
};

inline QSpacerItem * CreeRessort()
{
    return new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

// A window with a row without spacing and a chevron of 20 by 10 that can take the focus.
class Rangee
{
public:
    explicit Rangee(QList<int> const & largeurs = {}, bool avecChevron = true, int marge = 0)
    {
        if (avecChevron) {
            chevron = new Pave(20, &fenetre);
            chevron->setFocusPolicy(Qt::TabFocus);
        }
        layout = new LayoutHorizontalAvecChevron(&fenetre, chevron, marge);
        layout->setSpacing(0);
        for (int const largeur : largeurs)
            Ajoute(largeur);
    }

    Pave * Ajoute(int largeur)
    {
        auto * const pave = new Pave(largeur);
        paves.append(pave);
        layout->addWidget(pave);
        return pave;
    }

    void Place(int largeur, int hauteur = 10) { layout->setGeometry({0, 0, largeur, hauteur}); }

    QList<bool> DonneVisibles() const
    {
        QList<bool> visibles;
        for (int i = 0; i < layout->count(); ++i)
            visibles.append(layout->ItemEstVisible(i));
        return visibles;
    }

    QList<QRect> DonneGeometries() const
    {
        QList<QRect> geometries;
        for (Pave const * const pave : paves)
            geometries.append(pave->geometry());
        return geometries;
    }

    QWidget fenetre;
    Pave * chevron = nullptr;
    LayoutHorizontalAvecChevron * layout = nullptr;
    QList<Pave *> paves;
};

// Tells a spacing for each widget, as the styles do where the layout itself has none.
class StyleEspace : public QProxyStyle
{
public:
    explicit StyleEspace(int espacement)
        : QProxyStyle(QStringLiteral("fusion"))
        , monEspacement(espacement)
    {
    }
    int pixelMetric(PixelMetric mesure, QStyleOption const * option,
                    QWidget const * widget) const override
    {
        return mesure == PM_LayoutHorizontalSpacing
                   ? -1
                   : QProxyStyle::pixelMetric(mesure, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType premier, QSizePolicy::ControlType second,
                      Qt::Orientation sens, QStyleOption const *, QWidget const *) const override
    {
        bool const attendu = premier == QSizePolicy::PushButton &&
                             second == QSizePolicy::PushButton && sens == Qt::Horizontal;
        return attendu ? monEspacement : 1000;
    }

private:
    int monEspacement;
};

// A widget of a frame, which counts what is asked of it.
class Outil : public IWidgetChevronnable
{
public:
    explicit Outil(QString const & titre, int largeur, bool action = true)
        : monTitre(titre)
        , maLargeur(largeur)
        , monAction(action)
    {
    }
    QSize sizeHint() const override { return {maLargeur, 10}; }
    QString DonneTitre() override { return monTitre; }
    bool EstUneAction() override { return monAction; }
    QAction * DonneQAction() override
    {
        auto * const action = new QAction(monTitre);
        connect(action, &QAction::triggered, this, &Outil::PriseExecuteAction);
        return action;
    }
    QMenu * DonneQMenu() override { return new QMenu(monTitre); }

    int executions = 0;

protected:
    void PriseExecuteAction() override { ++executions; }

private:
    QString monTitre;
    int maLargeur;
    bool monAction;
};

} // namespace EssaisChevron
