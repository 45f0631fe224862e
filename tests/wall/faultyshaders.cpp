// SPDX-License-Identifier: GPL-3.0-or-later
#include "faultyshaders.h"

#include <QOpenGLShader>
#include <QOpenGLShaderProgram>

#include <dlfcn.h>

namespace {

ShaderFault theFault = ShaderFault::None;

// The library's own function behind one that is defined below.
template <typename Function>
Function next(const char* symbol)
{
    void* address = dlsym(RTLD_NEXT, symbol);
    if (address == nullptr)
        qFatal("no %s", symbol);
    return reinterpret_cast<Function>(address);
}

bool isAbout(const QOpenGLShader* shader, ShaderFault vertexFault, ShaderFault fragmentFault)
{
    const bool isVertex = shader->shaderType() == QOpenGLShader::Vertex;
    return theFault == (isVertex ? vertexFault : fragmentFault);
}

} // namespace

FaultyShaders::FaultyShaders(ShaderFault fault)
{
    theFault = fault;
}

FaultyShaders::~FaultyShaders()
{
    theFault = ShaderFault::None;
}

bool QOpenGLShader::compileSourceCode(const char* source)
{
    using Compile = bool (*)(QOpenGLShader*, const char*);
    static const auto compile = next<Compile>("_ZN13QOpenGLShader17compileSourceCodeEPKc");
    const bool isBroken = isAbout(this, ShaderFault::BrokenVertex, ShaderFault::BrokenFragment);
    return compile(this, isBroken ? "this is no shader" : source);
}

bool QOpenGLShaderProgram::addShader(QOpenGLShader* shader)
{
    using Add = bool (*)(QOpenGLShaderProgram*, QOpenGLShader*);
    static const auto add = next<Add>("_ZN20QOpenGLShaderProgram9addShaderEP13QOpenGLShader");
    const bool isTaken = add(this, shader);
    return isTaken && !isAbout(shader, ShaderFault::RefusedVertex, ShaderFault::RefusedFragment);
}
