// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/Interlocutor.h"

#include <QObject>

class ArchivosDelNavegador;

/// The same in a browser, which lets no page see the machine's files: the student gives one to the
/// page, or takes one from it.
class InterlocutorWeb final : public Interlocutor
{
public:
    InterlocutorWeb();
    ~InterlocutorWeb() override;

    /// The browser's own dialog. The file is copied to where the program can read it; what is
    /// written to it there later is handed out as a download.
    Tarea<QString> eligeArchivoParaAbrir(QWidget *padre, QString titulo, QString propuesta,
                                         QStringList filtros) override;

    /// A name; what is then written under it is handed out as a download.
    Tarea<Archivo> eligeArchivoParaGuardar(QWidget *padre, QString titulo, QString propuesta,
                                           QStringList filtros) override;

    /// What is printed becomes a download in PDF, which the browser shows and prints.
    Tarea<bool> eligeImpresora(QWidget *padre, std::shared_ptr<QPrinter> impresora,
                               QString titulo) override;

    /// The folder of the mailbox, after having told what it is.
    Tarea<QString> eligeCarpeta(QWidget *padre, QString pregunta, QString inicial) override;

    /// Another tab: a web address, or a page of the course, which stands beside this one.
    void abre(const QString &direccion) override;

    /// No page may start a program.
    bool lanzaAlguno(const QList<QStringList> &ordenes) override;

    /// A folder that the browser keeps for this page; it is there.
    static QString carpetaDelBuzon();

    /// Lets the student choose one of some things; its number, -1 when the student cancels.
    static Tarea<int> eligeDe(QWidget *padre, QString titulo, QString texto, QStringList opciones);

private:
    std::unique_ptr<ArchivosDelNavegador> m_archivos;
};
