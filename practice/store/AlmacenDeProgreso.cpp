// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/store/AlmacenDeProgreso.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/system/Disco.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What each version of the tables added to the one before, in the order of the versions.
const QList<QStringList> Migraciones{
    {u"CREATE TABLE ejercicio (id INTEGER PRIMARY KEY AUTOINCREMENT, clave TEXT NOT NULL,"
     " nivel INTEGER NOT NULL CHECK (nivel BETWEEN 1 AND 3), estado INTEGER NOT NULL,"
     " intentos INTEGER NOT NULL, pistas INTEGER NOT NULL, milisegundos INTEGER NOT NULL,"
     " hoja TEXT NOT NULL, dia INTEGER NOT NULL)"_s,
     u"CREATE TABLE fallo (ejercicio INTEGER NOT NULL REFERENCES ejercicio (id) ON DELETE CASCADE,"
     " orden INTEGER NOT NULL, nota TEXT NOT NULL, PRIMARY KEY (ejercicio, orden))"_s},
    {u"CREATE INDEX ejercicio_por_hoja ON ejercicio (hoja)"_s}};

constexpr int SegundosDeEspera = 2;

/// SQLite's own codes for what a student can do something about.
namespace Codigo {
constexpr int Error = 1, Ocupada = 5, Bloqueada = 6, SoloLectura = 8, Danada = 11, Llena = 13,
              NoSeAbre = 14, NoEsBase = 26;
}

} // namespace

AlmacenDeProgreso::AlmacenDeProgreso(const QString &carpeta)
    : m_carpeta(carpeta), m_conexion(QUuid::createUuid().toString())
{
    Apertura como = abre();
    if (como == Apertura::Danado) {
        cierra();
        if (apartaDanado())
            como = abre();
    }
    m_abierto = como == Apertura::Bien;
    if (como == Apertura::Posterior)
        m_aviso = Traduce(u"El progreso lo escribió una versión posterior del programa: se deja "
                          "como está, y lo de hoy no se guardará."_s);
    else if (!m_abierto)
        m_aviso = motivo() + u' ' + Traduce(u"Lo que practique hoy no se guardará."_s);
    if (!m_abierto)
        cierra();
}

AlmacenDeProgreso::~AlmacenDeProgreso()
{
    cierra();
}

void AlmacenDeProgreso::cierra()
{
    m_base.close();
    m_base = {};
    QSqlDatabase::removeDatabase(m_conexion);
}

QString AlmacenDeProgreso::nombreDeArchivo()
{
    return u"progreso.sqlite"_s;
}

QString AlmacenDeProgreso::ruta() const
{
    return m_carpeta + u'/' + nombreDeArchivo();
}

AlmacenDeProgreso::Apertura AlmacenDeProgreso::abre()
{
    constexpr auto soloDueno = QFile::ReadOwner | QFile::WriteOwner;
    QDir().mkpath(m_carpeta);
    QFile archivo(ruta());
    // Made before SQLite makes it, so that it is private from its first byte on; the journals take
    // over its permissions.
    if (!archivo.exists() && archivo.open(QIODevice::NewOnly | QIODevice::WriteOnly)) {
        soloParaSuDuena(archivo);
        archivo.close();
    }
    archivo.setPermissions(soloDueno);
    m_base = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_conexion);
    m_base.setDatabaseName(ruta());
    m_base.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(SegundosDeEspera * 1000));
    if (!m_base.open()) {
        recuerda(m_base.lastError());
        return Apertura::Ajeno;
    }
    const bool preparada = ejecuta(u"PRAGMA foreign_keys = ON"_s) &&
                           ejecuta(u"PRAGMA journal_mode = WAL"_s) &&
                           ejecuta(u"PRAGMA synchronous = FULL"_s);
    return preparada ? preparaTablas() : falloAlAbrir();
}

AlmacenDeProgreso::Apertura AlmacenDeProgreso::falloAlAbrir() const
{
    return m_codigo == Codigo::Danada || m_codigo == Codigo::NoEsBase ? Apertura::Danado
                                                                      : Apertura::Ajeno;
}

AlmacenDeProgreso::Apertura AlmacenDeProgreso::preparaTablas()
{
    QSqlQuery consulta(m_base);
    if (!consulta.exec(u"PRAGMA quick_check(1)"_s) || !consulta.next()) {
        recuerda(consulta.lastError());
        return falloAlAbrir();
    }
    // What the check finds wrong is told in a row, without an error.
    if (consulta.value(0).toString() != u"ok")
        return Apertura::Danado;
    consulta.finish();
    if (!ejecuta(u"CREATE TABLE IF NOT EXISTS version (numero INTEGER NOT NULL)"_s))
        return falloAlAbrir();
    const auto numero = version();
    if (!numero)
        return falloAlAbrir();
    if (*numero > Version)
        return Apertura::Posterior;
    if (*numero < Version && !migra()) // or tables that do not belong to their version
        return m_codigo == Codigo::Error ? Apertura::Danado : falloAlAbrir();
    const QStringList tablas = m_base.tables();
    return tablas.contains(u"ejercicio"_s) && tablas.contains(u"fallo"_s) ? Apertura::Bien
                                                                          : Apertura::Danado;
}

std::optional<int> AlmacenDeProgreso::version()
{
    QSqlQuery consulta(m_base);
    if (consulta.exec(u"SELECT max(numero) FROM version"_s) && consulta.next())
        return consulta.value(0).toInt();
    recuerda(consulta.lastError());
    return {};
}

bool AlmacenDeProgreso::migra()
{
    return enUnaTransaccion([this] {
               // Read again now that nobody else writes: another program may have come first.
               const auto desde = version();
               if (!desde || *desde >= Version)
                   return desde.has_value();
               for (int i = *desde; i < Version; ++i) {
                   for (const QString &orden : Migraciones[i]) {
                       if (!ejecuta(orden))
                           return false;
                   }
               }
               return ejecuta(u"DELETE FROM version"_s) &&
                      ejecuta(u"INSERT INTO version VALUES (%1)"_s.arg(Version));
           })
        .isEmpty();
}

/// The damaged file under a name that no other one has, with its journals.
bool AlmacenDeProgreso::apartaDanado()
{
    const QString base =
        u"progreso-danado-"_s + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    QString nombre = base;
    for (int i = 2; QFile::exists(m_carpeta + u'/' + nombre + u".sqlite"_s); ++i)
        nombre = u"%1-%2"_s.arg(base).arg(i);
    const QString destino = m_carpeta + u'/' + nombre + u".sqlite"_s;
    if (!QFile::rename(ruta(), destino))
        return false;
    for (const QString &diario : {u"-wal"_s, u"-shm"_s})
        QFile::rename(ruta() + diario, destino + diario);
    m_aviso = Traduce(u"El progreso estaba dañado: se ha apartado como %1 y se empieza de nuevo."_s)
                  .arg(nombre + u".sqlite"_s);
    return true;
}

bool AlmacenDeProgreso::ejecuta(QSqlQuery &consulta)
{
    if (consulta.exec())
        return true;
    recuerda(consulta.lastError());
    return false;
}

void AlmacenDeProgreso::recuerda(const QSqlError &error)
{
    m_error = error.databaseText();
    // Its lowest byte; the higher ones tell more, such as that it is the folder that is read-only.
    m_codigo = error.nativeErrorCode().toInt() & 0xFF;
}

bool AlmacenDeProgreso::ejecuta(const QString &orden)
{
    QSqlQuery consulta(m_base);
    if (consulta.exec(orden))
        return true;
    recuerda(consulta.lastError());
    return false;
}

QString AlmacenDeProgreso::enUnaTransaccion(const std::function<bool()> &accion)
{
    // IMMEDIATE: another program that writes is met here, not in the middle.
    if (!ejecuta(u"BEGIN IMMEDIATE"_s))
        return motivo();
    if (accion() && ejecuta(u"COMMIT"_s))
        return {};
    const QString porque = motivo();
    const int codigo = m_codigo;
    ejecuta(u"ROLLBACK"_s);
    m_codigo = codigo;
    return porque;
}

QString AlmacenDeProgreso::anota(const Hecho &hecho, qint64 &id)
{
    if (!m_abierto)
        return {};
    qint64 nuevo = id;
    const QString porque =
        enUnaTransaccion([&] { return escribe(hecho, nuevo) && escribeNotas(nuevo, hecho.notas); });
    if (porque.isEmpty())
        id = nuevo;
    return porque.isEmpty() ? porque
                            : Traduce(u"La última respuesta no se ha guardado."_s) + u' ' + porque;
}

bool AlmacenDeProgreso::escribe(const Hecho &hecho, qint64 &id)
{
    QSqlQuery consulta(m_base);
    const bool nuevo = id == 0;
    consulta.prepare(nuevo ? u"INSERT INTO ejercicio (estado, intentos, pistas, milisegundos, dia,"
                             " clave, nivel, hoja) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"_s
                           : u"UPDATE ejercicio SET estado = ?, intentos = ?, pistas = ?,"
                             " milisegundos = ?, dia = ? WHERE id = ?"_s);
    for (const QVariant &valor : QVariantList{static_cast<int>(hecho.estado), hecho.intentos,
                                              hecho.pistas, hecho.milisegundos, hecho.dia})
        consulta.addBindValue(valor);
    if (nuevo) {
        consulta.addBindValue(hecho.clave);
        consulta.addBindValue(hecho.nivel);
        consulta.addBindValue(hecho.hoja.isNull() ? u""_s : hecho.hoja);
    } else {
        consulta.addBindValue(id);
    }
    if (!ejecuta(consulta))
        return false;
    if (!nuevo && consulta.numRowsAffected() == 0) { // another program has forgotten all
        id = 0;
        return escribe(hecho, id);
    }
    if (nuevo)
        id = consulta.lastInsertId().toLongLong();
    return true;
}

/// Those that stand there already stay as they are.
bool AlmacenDeProgreso::escribeNotas(qint64 id, const QStringList &notas)
{
    QSqlQuery consulta(m_base);
    consulta.prepare(u"INSERT OR IGNORE INTO fallo (ejercicio, orden, nota) VALUES (?, ?, ?)"_s);
    for (qsizetype orden = 0; orden < notas.size(); ++orden) {
        consulta.bindValue(0, id);
        consulta.bindValue(1, orden);
        consulta.bindValue(2, notas[orden]);
        if (!ejecuta(consulta))
            return false;
    }
    return true;
}

QList<Hecho> AlmacenDeProgreso::hechos() const
{
    QList<Hecho> todos;
    QHash<qint64, qsizetype> lugares;
    QSqlQuery consulta(m_base);
    if (!m_abierto ||
        !consulta.exec(u"SELECT id, clave, nivel, estado, intentos, pistas, milisegundos, hoja, dia"
                       " FROM ejercicio ORDER BY id"_s))
        return todos;
    while (consulta.next()) {
        lugares.insert(consulta.value(0).toLongLong(), todos.size());
        todos << Hecho{consulta.value(1).toString(),
                       consulta.value(2).toInt(),
                       static_cast<EstadoDeEjercicio>(qBound(0, consulta.value(3).toInt(), 3)),
                       consulta.value(4).toInt(),
                       consulta.value(5).toInt(),
                       {},
                       consulta.value(6).toLongLong(),
                       consulta.value(7).toString(),
                       consulta.value(8).toLongLong()};
    }
    consulta.exec(u"SELECT ejercicio, nota FROM fallo ORDER BY ejercicio, orden"_s);
    while (consulta.next()) {
        // One of an exercise that another program has begun in between has no place here.
        const auto lugar = lugares.constFind(consulta.value(0).toLongLong());
        if (lugar != lugares.constEnd())
            todos[*lugar].notas << consulta.value(1).toString();
    }
    return todos;
}

QString AlmacenDeProgreso::borraTodo()
{
    if (!m_abierto)
        return QFile::exists(ruta()) ? m_aviso : QString();
    return enUnaTransaccion([this] { return ejecuta(u"DELETE FROM ejercicio"_s); });
}

QString AlmacenDeProgreso::motivo() const
{
    const QString nombre = QDir::toNativeSeparators(ruta());
    if (m_codigo == Codigo::Ocupada || m_codigo == Codigo::Bloqueada)
        return Traduce(u"Otro programa está escribiendo en el progreso (%1)."_s).arg(nombre);
    if (m_codigo == Codigo::Llena)
        return Traduce(u"El disco está lleno: no se puede escribir en %1."_s).arg(nombre);
    if (m_codigo == Codigo::SoloLectura || m_codigo == Codigo::NoSeAbre)
        return Traduce(u"No hay permiso para escribir en %1."_s).arg(nombre);
    return Traduce(u"No se puede escribir el progreso en %1: %2."_s).arg(nombre, m_error);
}
