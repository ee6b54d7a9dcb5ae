// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QStringList>
#include <QWidget>
#include <QtGui/QGenericPlugin>

/// Sits at the controls of a program as a student would: clicks and keys, found by object name. Qt
/// loads it into the program as it is given away (QT_QPA_GENERIC_PLUGINS), which knows nothing of
/// it. The settings are those below the folder PILOTO_AJUSTES, on systems too where an account has
/// only one such folder. A script (file PILOTO_GUION) has a step a line; a step waits for its
/// control to be there, visible and enabled:
///
///     pulsa BUTTON | escribe FIELD TEXT | tema CAPTION | fila VIEW ROW
///     espera CONTROL TEXT     until the text of the control begins so
///     archivo PATH            until the file exists
///     anota CONTROL           writes the text of the control to standard output
///     acaba
///
/// A message box that nobody asked for ends the program with an error.
class Piloto : public QObject
{
    Q_OBJECT

public:
    explicit Piloto(const QString &guion);

private:
    void daUnPaso();
    bool da(const QString &orden, const QString &control, const QString &resto);

    QStringList m_pasos;
    bool m_enPaso = false;
};

class PilotoPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "piloto.json")

public:
    QObject *create(const QString &clave, const QString &especificacion) override;
};
