#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Serves media files as RTSP cameras on 127.0.0.1, for tests.

usage: rtsp_server.py [--port PORT] NAME=FILE...

Each FILE (H.264 or H.265, with its sound if it has any) is played under
rtsp://127.0.0.1:PORT/NAME from its begin for each client; at its end the stream ends.
--port 0, the default, takes a free port. The first line written is "port PORT", once the server
answers. It ends when its standard input is closed.

Needs python3-gi, gir1.2-gst-rtsp-server-1.0 and GStreamer's good and bad plug-ins.
"""

import argparse
import pathlib
import sys
import threading

import gi

gi.require_version("Gst", "1.0")
gi.require_version("GstRtspServer", "1.0")
from gi.repository import GLib, Gst, GstRtspServer  # noqa: E402

DEMUXERS = {".mp4": "qtdemux", ".mov": "qtdemux", ".mkv": "matroskademux"}
# Parser and payloader by the type of a stream.
PAYLOADERS = {"video/x-h264": "h264parse ! rtph264pay", "video/x-h265": "h265parse ! rtph265pay",
              "audio/mpeg": "aacparse ! rtpmp4gpay", "audio/x-alaw": "rtppcmapay",
              "audio/x-mulaw": "rtppcmupay"}


def stream_types(source):
    """The media types of a file's streams, by the names of the demuxer's pads."""
    probe = Gst.parse_launch(source)
    complete = threading.Event()
    demuxer = probe.get_by_name("d")
    demuxer.connect("no-more-pads", lambda _: complete.set())
    probe.set_state(Gst.State.PAUSED)
    if not complete.wait(10):
        sys.exit("cannot read " + source)
    types = {pad.get_name(): pad.get_current_caps().get_structure(0).get_name()
             for pad in demuxer.srcpads}
    probe.set_state(Gst.State.NULL)
    return types


def pipeline(path):
    """What GStreamer shall do with a file, in its own notation."""
    source = f'filesrc location="{path}" ! {DEMUXERS[path.suffix]} name=d'
    parts = [source]
    for pad, media in stream_types(source).items():
        number = len(parts) - 1
        parts.append(f"d.{pad} ! queue ! {PAYLOADERS[media]} name=pay{number} pt={96 + number}")
    return "( " + " ".join(parts) + " )"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("files", nargs="+", metavar="NAME=FILE")
    arguments = parser.parse_args()

    Gst.init(None)
    server = GstRtspServer.RTSPServer()
    server.set_address("127.0.0.1")
    server.set_service(str(arguments.port))
    mounts = server.get_mount_points()
    for entry in arguments.files:
        name, _, path = entry.partition("=")
        factory = GstRtspServer.RTSPMediaFactory()
        factory.set_launch(pipeline(pathlib.Path(path).resolve()))
        mounts.add_factory("/" + name, factory)
    if server.attach(None) == 0:
        sys.exit("cannot listen")
    print("port", server.get_bound_port(), flush=True)

    loop = GLib.MainLoop()
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_HUP | GLib.IO_IN,
                      lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
