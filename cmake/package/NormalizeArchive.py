"""Rewrites an archive so that it depends on the files in it alone: their order is that of their names, they belong to
nobody, all may read them, and their time is SOURCE_DATE_EPOCH.

    SOURCE_DATE_EPOCH=... python3 NormalizeArchive.py archive...
"""

import gzip
import os
import sys
import tarfile
import time
import zipfile

EPOCH = int(os.environ["SOURCE_DATE_EPOCH"])


def normal_mode(mode):
    return 0o755 if mode & 0o100 else 0o644


def normalize_zip(path, result):
    date = time.gmtime(EPOCH)[:6]
    with zipfile.ZipFile(path) as old, zipfile.ZipFile(result, "w") as new:
        for name in sorted(old.namelist()):
            info = zipfile.ZipInfo(name, date)
            info.create_system = 3  # the mode of the file follows
            mode = normal_mode(old.getinfo(name).external_attr >> 16)
            info.external_attr = (0o040000 | mode) << 16 | 0x10 if info.is_dir() else (0o100000 | mode) << 16
            info.compress_type = zipfile.ZIP_STORED if info.is_dir() else zipfile.ZIP_DEFLATED
            new.writestr(info, old.read(name))


def normalize_tar(path, result):
    with tarfile.open(path) as old, open(result, "wb") as file, \
            gzip.GzipFile("", "wb", fileobj=file, mtime=0) as packed, \
            tarfile.open(fileobj=packed, mode="w", format=tarfile.GNU_FORMAT) as new:
        for member in sorted(old.getmembers(), key=lambda member: member.name):
            info = tarfile.TarInfo(member.name)
            info.type, info.linkname, info.size = member.type, member.linkname, member.size
            info.mode, info.mtime = normal_mode(member.mode), EPOCH
            new.addfile(info, old.extractfile(member) if member.isreg() else None)


for archive in sys.argv[1:]:
    scratch = archive + ".new"
    (normalize_zip if archive.endswith(".zip") else normalize_tar)(archive, scratch)
    os.replace(scratch, archive)
