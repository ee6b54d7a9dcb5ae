// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/EjercicioEnCurso.h"

#include <QSqlDatabase>
#include <functional>
#include <optional>

class QSqlError;
class QSqlQuery;

/// What a student has done, in a database of their own in a folder of theirs: one transaction for
/// each answer, so that a program that is killed loses the last answer at most. Nothing here
/// throws: what cannot be kept is told by a sentence, and practice goes on without.
class AlmacenDeProgreso
{
public:
    /// Opens the database of that folder, or begins one, readable by its owner alone. A damaged one
    /// is put aside under another name and a new one begun; one of a later version is left alone.
    explicit AlmacenDeProgreso(const QString &carpeta);
    ~AlmacenDeProgreso();
    AlmacenDeProgreso(const AlmacenDeProgreso &) = delete;
    AlmacenDeProgreso &operator=(const AlmacenDeProgreso &) = delete;

    /// Whether answers are kept.
    bool abierto() const { return m_abierto; }
    /// What the student is to know about the opening; empty when all is well.
    const QString &aviso() const { return m_aviso; }

    /// Keeps an exercise: `id` is what the answer before gave for it, 0 for a new one, and becomes
    /// its own. Gives a sentence where it could not be kept, else nothing.
    QString anota(const Hecho &hecho, qint64 &id);

    /// All that was kept, in the order in which it was begun.
    QList<Hecho> hechos() const;

    /// Forgets everything. Gives a sentence where that could not be done.
    QString borraTodo();

    /// The name of the file in its folder.
    static QString nombreDeArchivo();
    QString ruta() const;

    /// The version of the tables that this program writes.
    static constexpr int Version = 2;

private:
    enum class Apertura { Bien, Danado, Posterior, Ajeno };
    Apertura abre();
    Apertura preparaTablas();
    std::optional<int> version();
    bool migra();
    void cierra();
    bool apartaDanado();
    QString enUnaTransaccion(const std::function<bool()> &accion);
    bool escribe(const Hecho &hecho, qint64 &id);
    bool escribeNotas(qint64 id, const QStringList &notas);
    bool ejecuta(const QString &orden);
    bool ejecuta(QSqlQuery &consulta);
    void recuerda(const QSqlError &error);
    Apertura falloAlAbrir() const;
    QString motivo() const;

    QString m_carpeta;
    QString m_conexion;
    QSqlDatabase m_base;
    QString m_error;
    int m_codigo = 0;
    QString m_aviso;
    bool m_abierto = false;
};
