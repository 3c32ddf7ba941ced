// tests/foundation/ProgrammeEnfant.h
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <cstdio>

// A test program that runs itself in another environment, where the one that it has can't change.

// What the program prints for its arguments in another environment.
inline QString LanceEnfant(QStringList const & arguments, QHash<QString, QString> const & variables)
{
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environnement.insert(it.key(), it.value());
    QProcess enfant;
    enfant.setProcessEnvironment(environnement);
    enfant.start(QCoreApplication::applicationFilePath(), arguments);
    if (!enfant.waitForFinished() || enfant.exitCode() != 0)
        return QStringLiteral("failed");
    return QString::fromUtf8(enfant.readAllStandardOutput()).trimmed();
}

// The other side: prints the answer.
inline int Imprime(QString const & texte)
{
    std::puts(qPrintable(texte));
    return 0;
}
