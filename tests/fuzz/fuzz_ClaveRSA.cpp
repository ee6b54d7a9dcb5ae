// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/key/ClsRSA.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "tests/fuzz/FuzzTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A working folder in memory where there is one, because a key is put on disk with great care.
const QTemporaryDir &workingFolder()
{
    static const QTemporaryDir folder(
        (QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath()) + u"/fuzz-XXXXXX"_s);
    return folder;
}

void start()
{
    static int argc = 1;
    static char name[] = "fuzz_ClaveRSA";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, workingFolder().path());
    Sesión().ponCarpeta(workingFolder().path());
}

void checkGoodKey(const ClsRSA &key)
{
    check(Evalua(u"(%1)*(%2)"_s.arg(key.q(1), key.q(2)), {}, Aritmetica::Entera) == key.q(0),
          "q(0) is the product");
    check(EsPrimo(key.q(1)) && EsPrimo(key.q(2)), "a good key has two primes");
    check(key.FiQ() == u"1"_s || Evalua(u"((%1)*(%2)) mod (%3)"_s.arg(key.s(), key.t(), key.FiQ()),
                                        {}, Aritmetica::Entera) == u"1"_s,
          "t is the inverse of s");
    ClsRSA again(Sesión());
    again.RecuperaClave();
    check(again.ClaveOK() && again.q(0) == key.q(0) && again.t() == key.t(),
          "a saved key is read back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool started = (start(), true);
    static_cast<void>(started);
    ClsRSA key(Sesión());
    QFile file(rutaDePlataforma(key.FicheroClavePrivada()));
    check(file.open(QIODevice::WriteOnly), "the key file can be written");
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    try {
        key.RecuperaClave();
    } catch (const ErrorEjecucion &) {
        check(!key.ClaveOK(), "an error leaves no good key");
        return 0;
    }
    const QString objection = key.Objecion();
    check(!key.ClaveOK() || objection.isEmpty(), "nothing is objected to a good key");
    if (key.ClaveOK())
        checkGoodKey(key);
    return 0;
}
