// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Evento.h"

#include <QObject>
#include <QString>

class FormPrincipal;

/// The menu "Datos", which only a browser has: what is kept goes out of the page and into it as
/// files, and so do the messages and public keys of the mailbox.
class MenuDeDatos : public QObject
{
    Q_OBJECT

public:
    explicit MenuDeDatos(FormPrincipal *principal);

    /// Tells that the mailbox stands in a folder of the machine now; with no name, that it cannot.
    void buzonUnido(const QString &carpeta);

    /// Tells that a file was no copy of what is kept.
    void copiaRechazada();

private:
    void guardaCopia();
    Tarea<> reponCopia();
    Tarea<> cambiaNombre();
    Tarea<> sacaDelBuzon();
    Tarea<> traeAlBuzon();
    Tarea<QString> preguntaUsuario(QString archivo);
    void avisa(const QString &texto);

    FormPrincipal *m_principal;
    TareasDeVentana m_tareas;
};
