// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/sheets/Clase.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Eleccion.h"
#include "practice/sheets/PalabrasDeNotas.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"

#include <QDir>
#include <QMap>
#include <QSet>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype ArchivosComoMucho = 1000;
constexpr qsizetype ErroresComoMucho = 50;

bool cuenta(const Hecho &hecho, const QString &hoja)
{
    return hoja.isEmpty() || hecho.hoja == hoja;
}

/// "3/5", unaided of tried; empty where nothing was.
QString celdaDe(const Resultados &alumno, const QString &clave, const QString &hoja)
{
    int hechos = 0, solos = 0;
    for (const Hecho &hecho : alumno.hechos) {
        if (hecho.clave != clave || !cuenta(hecho, hoja))
            continue;
        ++hechos;
        solos += hecho.sinAyuda() ? 1 : 0;
    }
    return hechos == 0 ? QString() : u"%1/%2"_s.arg(solos).arg(hechos);
}

void lee(const QFileInfo &archivo, Clase &clase)
{
    const auto rechaza = [&](const QString &motivo) {
        clase.rechazados << archivo.fileName().left(80) + u": "_s + motivo;
    };
    try {
        const auto leidos = leeResultados(leeArchivo(archivo.filePath(), MaximoDeResultados));
        if (const auto *motivo = std::get_if<QString>(&leidos))
            rechaza(*motivo);
        else
            clase.alumnos << std::get<Resultados>(leidos);
    } catch (const ErrorEjecucion &) {
        rechaza(Traduce(u"no se puede leer, o es demasiado grande"_s));
    }
}

} // namespace

Clase claseDeCarpeta(const QString &carpeta)
{
    Clase clase;
    auto archivos = QDir(carpeta).entryInfoList({u"*.csv"_s}, QDir::Files, QDir::Name);
    if (archivos.size() > ArchivosComoMucho) {
        clase.rechazados
            << Traduce(u"Hay más de %1 archivos: los demás no se leen"_s).arg(ArchivosComoMucho);
        archivos = archivos.first(ArchivosComoMucho);
    }
    for (const QFileInfo &archivo : archivos)
        lee(archivo, clase);
    std::stable_sort(clase.alumnos.begin(), clase.alumnos.end(),
                     [](const Resultados &a, const Resultados &b) {
                         return a.alumno.localeAwareCompare(b.alumno) < 0;
                     });
    return clase;
}

RejillaDeClase rejillaDeClase(const Clase &clase, const QString &hoja)
{
    RejillaDeClase rejilla{{Traduce(u"Ejercicio"_s)}, {}};
    for (const Resultados &alumno : clase.alumnos)
        rejilla.cabeceras << alumno.alumno;
    for (const QString &clave : clavesDelBanco()) {
        QStringList fila{Traduce(tipoDeEjercicio(clave)->titulo)};
        for (const Resultados &alumno : clase.alumnos)
            fila << celdaDe(alumno, clave, hoja);
        if (std::any_of(fila.begin() + 1, fila.end(),
                        [](const QString &c) { return !c.isEmpty(); }))
            rejilla.filas << fila;
    }
    return rejilla;
}

QStringList hojasDeClase(const Clase &clase)
{
    QStringList hojas;
    for (const Resultados &alumno : clase.alumnos) {
        for (const Hecho &hecho : alumno.hechos)
            hojas << hecho.hoja;
    }
    hojas.removeAll(QString());
    hojas.sort();
    hojas.removeDuplicates();
    return hojas;
}

QList<QStringList> erroresDeClase(const Clase &clase, const QString &hoja)
{
    struct Veces
    {
        QSet<qsizetype> alumnos;
        qsizetype veces = 0;
    };
    QMap<std::pair<QString, QString>, Veces> errores;
    for (qsizetype i = 0; i < clase.alumnos.size(); ++i) {
        for (const Hecho &hecho : clase.alumnos[i].hechos) {
            if (!cuenta(hecho, hoja))
                continue;
            for (const QString &nota : hecho.notas) {
                Veces &veces = errores[{hecho.clave, nota}];
                veces.alumnos << i;
                ++veces.veces;
            }
        }
    }
    auto claves = errores.keys();
    std::stable_sort(claves.begin(), claves.end(), [&](const auto &a, const auto &b) {
        return std::pair(errores[a].alumnos.size(), errores[a].veces) >
               std::pair(errores[b].alumnos.size(), errores[b].veces);
    });
    QList<QStringList> filas;
    for (const auto &clave : claves.first(std::min(claves.size(), ErroresComoMucho)))
        filas << QStringList{
            Traduce(tipoDeEjercicio(clave.first)->titulo), palabrasDeNota(clave.second),
            QString::number(errores[clave].alumnos.size()), QString::number(errores[clave].veces)};
    return filas;
}
