#!/usr/bin/env python3
"""Makes projected_points.txt with PROJ (Debian's python3-pyproj): coordinate system, lat, lon, x, y."""
from pyproj import Transformer

ZONES = [(1, "N"), (30, "N"), (31, "N"), (31, "S"), (56, "S"), (60, "S")]
LATITUDES = [-79.5, -34.4866, -0.0004, 0, 0.00045, 27.4422, 52.40768, 71.25, 83.9]
OFFSETS = [-5.2, -3, -2.9999, -0.25, 0, 1.5, 3.0001]
OTHERS = [("tm:lon0=9,lat0=0,k0=0.9996,fe=500000,fn=0", "+lon_0=9 +k=0.9996 +x_0=500000", 9),
          ("tm:lon0=-2,lat0=49,k0=0.9996012717,fe=400000,fn=-100000",
           "+lon_0=-2 +lat_0=49 +k=0.9996012717 +x_0=400000 +y_0=-100000", -2),
          ("tm:lon0=179,lat0=-10,k0=1,fe=0,fn=0", "+lon_0=179 +lat_0=-10 +k=1", 179)]
LARGE = [-29.5, -12, -3.5, 0, 0.001, 2, 29.9]


def wrapped(longitude):
    return (longitude + 180) % 360 - 180


def lines(system, projection, meridian, latitudes, offsets):
    transformer = Transformer.from_crs("EPSG:4326", projection + " +datum=WGS84 +units=m +type=crs", always_xy=True)
    for latitude in latitudes:
        for offset in offsets:
            longitude = round(wrapped(meridian + offset), 6)
            x, y = transformer.transform(longitude, latitude)
            yield f"{system} {latitude!r} {longitude!r} {x:.6f} {y:.6f}"


with open("projected_points.txt", "w", encoding="ascii") as file:
    for zone, side in ZONES:
        south = " +south" if side == "S" else ""
        for line in lines(f"utm:{zone}{side}", f"+proj=utm +zone={zone}{south}", -183 + 6 * zone, LATITUDES, OFFSETS):
            print(line, file=file)
    for system, settings, meridian in OTHERS:
        for line in lines(system, f"+proj=tmerc {settings}", meridian, LATITUDES[1:8], LARGE):
            print(line, file=file)
