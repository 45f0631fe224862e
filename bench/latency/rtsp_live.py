#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Passes encoded pictures on as a live RTSP camera on 127.0.0.1, each at once.

usage: rtsp_live.py PIPE

The named pipe brings H.264 pictures in Annex B form, for each: whether it is a key picture (1 byte),
its size (4 bytes, little endian), its bytes. All players of rtsp://127.0.0.1:PORT/camera share one
stream, which begins with a key picture. The first line written is "port PORT".

Needs python3-gi, gir1.2-gst-rtsp-server-1.0 and GStreamer's good plug-ins.
"""

import struct
import sys
import threading

import gi

gi.require_version("Gst", "1.0")
gi.require_version("GstRtspServer", "1.0")
from gi.repository import GLib, Gst, GstRtspServer  # noqa: E402

HEAD = struct.Struct("<BI")
# Whole pictures are told, so that nothing waits for the begin of the next one.
PIPELINE = ("( appsrc name=camera is-live=true do-timestamp=true format=time "
            "caps=video/x-h264,stream-format=byte-stream,alignment=au "
            "! rtph264pay name=pay0 pt=96 config-interval=-1 )")


class Camera:
    """Where the pictures go: the source of the stream, while anybody plays it."""

    def __init__(self):
        self.lock = threading.Lock()
        self.source = None
        self.begun = False

    def configure(self, _factory, media):
        with self.lock:
            self.source = media.get_element().get_by_name("camera")
            self.begun = False
        media.connect("unprepared", self.end)

    def end(self, _media):
        with self.lock:
            self.source = None

    def take(self, key, picture):
        with self.lock:
            if self.source is None:
                return
            self.begun = self.begun or key
            if self.begun:
                self.source.emit("push-buffer", Gst.Buffer.new_wrapped(picture))


def pass_on(path, camera):
    with open(path, "rb") as pipe:
        while head := pipe.read(HEAD.size):
            key, size = HEAD.unpack(head)
            camera.take(bool(key), pipe.read(size))


def main():
    Gst.init(None)
    camera = Camera()
    server = GstRtspServer.RTSPServer()
    server.set_address("127.0.0.1")
    server.set_service("0")
    factory = GstRtspServer.RTSPMediaFactory()
    factory.set_launch(PIPELINE)
    factory.set_shared(True)
    factory.connect("media-configure", camera.configure)
    server.get_mount_points().add_factory("/camera", factory)
    if server.attach(None) == 0:
        sys.exit("cannot listen")
    print("port", server.get_bound_port(), flush=True)
    threading.Thread(target=pass_on, args=(sys.argv[1], camera), daemon=True).start()
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
