"""Runs the native renderer on the sample model and reads every metafile it
writes: each is a whole enhanced metafile (header with the " EMF" signature, its
size and record count as found, an end record) with drawing records in it."""
import os
import struct
import subprocess
import sys
import tempfile

program, data = sys.argv[1], sys.argv[2]
names = ["hole", "drill", "slide", "styles", "symbols", "glyphs", "bar", "sheet",
         "sandwich", "wall", "slides"]
with tempfile.TemporaryDirectory() as out:
    run = subprocess.run([program, "--model", os.path.join(data, "model"), "--slides",
                          os.path.join(data, "slides", "mylib.slb"), "--out", out],
                         capture_output=True, text=True)
    assert run.returncode == 0, run.stdout + run.stderr
    for name in names:
        data_ = open(os.path.join(out, name + ".emf"), "rb").read()
        kind, size = struct.unpack("<II", data_[:8])
        assert kind == 1 and size == 108, name + ": header"
        assert data_[40:44] == b" EMF", name + ": signature"
        (total, records) = struct.unpack("<II", data_[48:56])
        assert total == len(data_), name + ": size"
        pos, count, lines = 0, 0, 0
        while pos < len(data_):
            kind, size = struct.unpack("<II", data_[pos:pos + 8])
            assert size >= 8 and size % 4 == 0, name + ": record size"
            count += 1
            lines += kind == 54  # EMR_LINETO
            pos += size
        assert count == records and kind == 14, name + ": records"
        assert lines > 0, name + ": nothing drawn"
print("render ok: %d metafiles" % len(names))
