// SPDX-License-Identifier: GPL-3.0-or-later
// orva-pictures MANIFEST TOKENS FOLDER: makes the program's pictures from SVG, at build time.
#include "gif.h"
#include "manifest.h"
#include "output.h"
#include "render.h"
#include "tokens.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

namespace {

// Qt loads name@2x.png in the place of name.png on a screen of high density.
Place twice(Place place)
{
    place.file.insert(place.file.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
    return place;
}

void make(const Manifest& manifest, Output& output)
{
    for (const Picture& picture : manifest.pictures) {
        output.addPng(picture.place, render(picture, 1));
        output.addPng(twice(picture.place), render(picture, 2));
    }
    for (const Animation& animation : manifest.animations)
        output.add(animation.place, encodeGif(render(animation), animation.frameMs));
    output.finish();
}

int run(const QStringList& arguments)
{
    if (arguments.size() != 4) {
        std::fputs("usage: orva-pictures MANIFEST TOKENS FOLDER\n", stderr);
        return 2;
    }
    const Tokens tokens(arguments[2]);
    Output output(arguments[3]);
    make(Manifest::read(arguments[1], tokens), output);
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    // Nothing is drawn but paths into images: that needs no platform, no display and no fonts.
    const QCoreApplication application(argc, argv);
    try {
        return run(QCoreApplication::arguments());
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
}
