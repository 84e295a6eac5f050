#pragma once
// The program's entry: creates the application object and runs Main.
int EjecutarVeldo(int argc, char** argv);
