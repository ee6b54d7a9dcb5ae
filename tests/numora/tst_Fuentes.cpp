// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Rules of the house that neither compiler nor linker holds, looked for in the sources.
class TestFuentes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &carpeta :
             {u"bignum"_s, u"shell"_s, u"lessons"_s, u"minical"_s, u"practice"_s, u"numora"_s}) {
            QDirIterator busca(raiz() + carpeta, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (busca.hasNext())
                m_fuentes << busca.next().mid(raiz().size());
        }
        QVERIFY(m_fuentes.size() > 100);
    }

    void soloDondeDebe()
    {
        struct Regla
        {
            QString nombre, donde, que; ///< the files that are looked at, what they are not to hold
            QString excepcion = u"^$"_s; ///< but in these
        };
        const QString todos = u"."_s;
        for (
            const auto &[nombre, donde, que, excepcion] :
            {Regla{u"no event loop inside an event"_s, todos,
                   u"processEvents *\\(|QEventLoop\\b(?!Locker)"_s,
                   u"^shell/start/(Main|Galeria)\\.cpp$"_s},
             {u"nothing is executed that can be awaited"_s, todos,
              u"(menu|caja|dialogo)\\w*(\\.|->)exec\\(|Q(MessageBox|FileDialog|InputDialog)::"
              u"(information|warning|critical|question|get(?!OpenFileContent)\\w+)\\("_s},
             {u"coroutines hide from the meta-object compiler"_s, todos, u"#include <coroutine>"_s,
              u"^shell/core/run/Corrutina\\.h$"_s},
             {u"the failure text is compared in one place"_s,
              u"^(shell|lessons|minical|practice)/"_s,
              u"(==|!=) *(TextoError|u\"Error\")|(startsWith|contains)\\((TextoError|u\"Error\")"_s,
              u"^shell/core/Lectura\\.cpp$"_s},
             {u"the library is called through its gateway"_s,
              u"^(shell|lessons|minical|practice|numora)/"_s, u"#include \"bignum/(?!gateway/)"_s},
             {u"the system is asked in one folder"_s, u"^shell/"_s,
              u"#include <(unistd|pwd|fcntl|dirent|csignal|sys/\\w+|io|windows|winternl|aclapi)(\\.h)?>"_s,
              u"^shell/core/system/(posix|windows)/"_s},
             {u"the shell knows no lesson"_s, u"^(bignum|shell)/"_s,
              u"#include \"(lessons|minical|practice|numora)/"_s},
             {u"no lesson knows the exercises"_s, u"^(lessons|minical)/"_s,
              u"#include \"practice/"_s},
             {u"exercises know no window of a lesson"_s, u"^practice/"_s,
              u"#include \"(lessons|minical)/.*windows/"_s},
             {u"what is practised knows neither store nor window"_s,
              u"^practice/(engine|bank|progress|sheets)/"_s,
              u"#include (\"practice/(store|windows)/|<QSql)"_s},
             {u"the number service knows no shell"_s, u"^bignum/"_s, u"#include \"shell/"_s},
             {u"logic knows no window"_s,
              u"^(shell/core|lessons|minical|practice)/(?!.*windows/)"_s,
              u"#include \"(shell/(start|frame|grid|page|plot|controls|look)/|[^\"]*windows/)"_s}}) {
            const QRegularExpression ambito(donde), prohibido(que), permitido(excepcion);
            for (const QString &fuente : m_fuentes)
                QVERIFY2(!ambito.match(fuente).hasMatch() || permitido.match(fuente).hasMatch() ||
                             !prohibido.match(contenido(fuente)).hasMatch(),
                         qPrintable(fuente + u": "_s + nombre));
        }
    }

    void ningunaLeccionConoceAOtra()
    {
        static const QRegularExpression incluida(u"#include \"(lessons/\\w+)/"_s);
        for (const QString &fuente : m_fuentes) {
            const QString propia = fuente.section(u'/', 0, 1);
            auto vecinas = incluida.globalMatch(contenido(fuente));
            while (propia.startsWith(u"lessons/") && vecinas.hasNext())
                QVERIFY2(vecinas.next().captured(1) == propia, qPrintable(fuente));
        }
    }

    /// To the linker two of one name are one: one's destructor takes the other's apart.
    void cadaTipoSeLlamaDeOtroModo()
    {
        static const QRegularExpression tipo(
            u"^(?:class|struct|enum class) (\\w+)(?: final)?(?: :[^;{]*)?\\s*\\{"_s,
            QRegularExpression::MultilineOption);
        QHash<QString, QString> donde;
        for (const QString &fuente : m_fuentes) {
            if (!fuente.endsWith(u".h"_s) || fuente.contains(u"/system/windows/"_s))
                continue; // where each system has its own of what another has
            const QString texto = contenido(fuente);
            for (const auto &hallado : tipo.globalMatch(texto)) {
                QString &otra = donde[hallado.captured(1)];
                QVERIFY2(otra.isEmpty(),
                         qPrintable(hallado.captured(1) + u": "_s + otra + u", "_s + fuente));
                otra = fuente;
            }
        }
        QVERIFY(donde.size() > 300);
    }

private:
    static QString raiz() { return QStringLiteral(FUENTES) + u'/'; }
    static QString contenido(const QString &fuente)
    {
        QFile archivo(raiz() + fuente);
        return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
    }

    QStringList m_fuentes;
};

QTEST_GUILESS_MAIN(TestFuentes)
#include "tst_Fuentes.moc"
