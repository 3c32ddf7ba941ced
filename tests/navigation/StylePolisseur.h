// tests/navigation/StylePolisseur.h
#pragma once

#include <QProxyStyle>
#include <QStringList>
#include <QStyleFactory>
#include <QWidget>

/// Records what it polishes: "u" or "p" and the object name of the widget at that moment.
class StylePolisseur : public QProxyStyle
{
public:
    StylePolisseur()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget * widget) override
    {
        appels.append(QStringLiteral("p ") + widget->objectName());
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget * widget) override
    {
        appels.append(QStringLiteral("u ") + widget->objectName());
        QProxyStyle::unpolish(widget);
    }

    QStringList appels;
};
