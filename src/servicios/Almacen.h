#pragma once
// The one way the records reach a store: Almacen<cContribSvr>() hands out a store with the paths
// of the program's databases already set (mdbmod, mdblec, mdbPath, whichever the store has), so
// no caller copies the paths by hand before each call.
#include "plataforma/General.h"

template <typename Svr>
Svr Almacen()
{
    Svr svr;
    if constexpr (requires { svr.mdbmod; })
        svr.mdbmod = mdbmod;
    if constexpr (requires { svr.mdblec; })
        svr.mdblec = mdblec;
    if constexpr (requires { svr.mdbPath; })
        svr.mdbPath = mdbPath;
    return svr;
}
