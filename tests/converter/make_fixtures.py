#!/usr/bin/python3
"""Makes the pictures of tests/converter/fixtures anew: NAME.ppm is a picture, NAME-TOOL.pcx what a program made of it,
others/NAME-TOOL.ENDING another kind of picture. Called with "others" it makes those alone, for which imagemagick, webp and
python3-pil suffice.

Needs Debian's netpbm, imagemagick, graphicsmagick, ffmpeg, ghostscript and python3-pil; the tests need none of them.
Two and three planes of 1 bit and one plane of 2 bits come from netpbm alone: no other of Debian's programs was found
that writes them.
"""
import pathlib
import subprocess
import sys

from PIL import Image

fixtures = pathlib.Path(__file__).parent / "fixtures"
width, height = 141, 9  # an odd width, with runs longer than one byte can count


def write(name, colour_at):
    pixels = b"".join(bytes(colour_at(x, y)) for y in range(height) for x in range(width))
    (fixtures / f"{name}.ppm").write_bytes(b"P6\n%d %d\n255\n" % (width, height) + pixels)


def pattern(x, y):
    """The upper lines are long runs, the lower ones change from pixel to pixel."""
    return x // 70 + y if y < 3 else x * 7 + y * 3


def spread(index, count):
    """Colours that differ in all three channels and in their upper two bits."""
    return ((index * 97 + 13) % 256, 255 - index * 255 // (count - 1), (index * 181 + 200) % 256)


# What Ghostscript can paint on its devices of 16 colours, as PostScript asks for them, with what comes of it: light of
# red, green and blue, and ink of cyan, magenta, yellow and black.
BRIGHT = {f"{i >> 2 & 1} {i >> 1 & 1} {i & 1} setrgbcolor":
          tuple(255 if i >> bit & 1 else 85 for bit in (2, 1, 0)) if i else (0, 0, 0) for i in range(8)}
INKS = {f"{i >> 3 & 1} {i >> 2 & 1} {i >> 1 & 1} {i & 1} setcmykcolor": colour for i, colour in enumerate((
    (255, 255, 255), (0, 0, 0), (255, 255, 0), (15, 15, 0), (255, 0, 255), (15, 0, 15), (255, 0, 0), (15, 0, 0),
    (0, 255, 255), (0, 15, 15), (0, 255, 0), (0, 15, 0), (0, 0, 255), (0, 0, 15), (31, 31, 31), (15, 15, 15)))}


def write_sources():
    write("mono", lambda x, y: (255 * (pattern(x, y) % 2),) * 3)
    for name, count in (("two", 2), ("four", 4), ("eight", 8), ("sixteen", 16), ("all256", 256)):
        write(name, lambda x, y, count=count: spread(pattern(x, y) % count, count))
    write("grey", lambda x, y: (pattern(x, y) % 256,) * 3)
    for name, colours in (("bright", BRIGHT), ("inks", INKS)):
        write(name, lambda x, y, colours=list(colours.values()): colours[pattern(x, y) % len(colours)])
    write("true", lambda x, y: (x * 255 // (width - 1), y * 31 % 256, (x * 3 + y * 17) % 256))


def run(*command, output=None, given=None):
    stdout = open(fixtures / output, "wb") if output else None
    subprocess.run([str(part) for part in command], check=True, cwd=fixtures, stdout=stdout,
                   stderr=subprocess.DEVNULL, input=given)


def write_pcx():
    for name in ("two", "four", "eight", "sixteen", "all256", "true", "mono"):
        run("ppmtopcx", f"{name}.ppm", output=f"{name}-netpbm.pcx")
    for name in ("four", "sixteen"):
        run("ppmtopcx", "-packed", f"{name}.ppm", output=f"{name}-netpbm-packed.pcx")
    run("ppmtopcx", "-24bit", "sixteen.ppm", output="sixteen-netpbm-24.pcx")
    run("ppmtopcx", "-xpos", "7", "-ypos", "5", "sixteen.ppm", output="sixteen-netpbm-offset.pcx")
    for name, kind in (("all256", "palette"), ("grey", "truecolor"), ("sixteen", "truecolor"), ("true", "truecolor")):
        run("convert", f"{name}.ppm", "-type", kind, f"{name}-imagemagick.pcx")
        run("convert", f"{name}.ppm", "-type", kind, "-compress", "none", f"{name}-imagemagick-raw.pcx")
        run("gm", "convert", f"{name}.ppm", "-type", kind, f"{name}-graphicsmagick.pcx")
    run("convert", "true.ppm", "-alpha", "on", "-channel", "A", "-evaluate", "set", "40%", "true-imagemagick-alpha.pcx")
    run("gm", "convert", "mono.ppm", "-type", "bilevel", "mono-graphicsmagick.pcx")
    for name, layout in (("true", "rgb24"), ("grey", "gray"), ("mono", "monob")):
        run("ffmpeg", "-v", "error", "-y", "-i", f"{name}.ppm", "-sws_dither", "none", "-pix_fmt", layout,
            f"{name}-ffmpeg.pcx")
    for name, mode in (("true", "RGB"), ("grey", "L"), ("mono", "1"), ("all256", "P")):
        picture = Image.open(fixtures / f"{name}.ppm")
        if mode == "P":
            picture = picture.quantize(256, dither=Image.Dither.NONE)
        picture.convert(mode, dither=Image.Dither.NONE).save(fixtures / f"{name}-pillow.pcx")
    for name, colours, device in (("bright", list(BRIGHT), "pcx16"), ("inks", list(INKS), "pcxcmyk")):
        page = "".join(f"{colours[pattern(x, y) % len(colours)]} {x} {height - 1 - y} 1 1 rectfill\n"
                       for y in range(height) for x in range(width))
        run("gs", "-q", "-dNOPAUSE", "-dBATCH", f"-sDEVICE={device}", f"-g{width}x{height}", "-r72",
            f"-sOutputFile={name}-ghostscript.pcx", "-", given=page.encode() + b"showpage\n")


def write_others():
    """NAME is a picture that comes back pixel by pixel; the names with a further word are told in the test."""
    others = fixtures / "others"
    pictures = {name: Image.open(fixtures / f"{name}.ppm") for name in ("true", "all256", "grey", "mono")}
    indexed = pictures["all256"].quantize(256, dither=Image.Dither.NONE)
    true = pictures["true"]
    for ending, options in (("png", {}), ("bmp", {}), ("tif", {"compression": "tiff_lzw"}), ("webp", {"lossless": True})):
        true.save(others / f"true-pillow.{ending}", **options)
    for ending in ("png", "bmp", "gif"):
        indexed.save(others / f"all256-pillow.{ending}")
    indexed.save(others / "palette-pillow.tif")
    pictures["grey"].convert("L").save(others / "grey-pillow.png")
    mono = pictures["mono"].convert("1", dither=Image.Dither.NONE)
    mono.save(others / "mono-pillow.png")
    mono.save(others / "mono-pillow.tif", compression="group4")
    true.save(others / "lossy-pillow.jpg", quality=95, subsampling=0)
    true.save(others / "lossy-progressive.jpg", quality=95, subsampling=0, progressive=True)
    true.convert("CMYK").save(others / "lossy-cmyk.jpg", quality=95)
    turned = Image.Exif()
    turned[0x0112] = 6  # its right side is the top
    true.save(others / "turned-pillow.jpg", quality=95, subsampling=0, exif=turned)
    true.save(others / "turned-pillow.tif", tiffinfo={274: 6})
    half = true.convert("RGBA")
    half.putalpha(128)
    for ending in ("png", "tif"):
        half.save(others / f"half-pillow.{ending}")
    half.save(others / "half-pillow.webp", lossless=True, exact=True)
    invisible = true.convert("RGBA")
    invisible.putalpha(0)
    invisible.save(others / "true-fourthbyte.bmp")
    deep = Image.new("I;16", (width, height))
    deep.putdata([value * 257 for value in pictures["grey"].convert("L").getdata()])
    deep.save(others / "grey-deep.png")
    deep.save(others / "grey-deep.tif")
    frames = [Image.new("RGB", (60, 40), colour) for colour in ("red", "lime", "blue")]
    for ending in ("png", "gif", "webp", "tif"):
        options = {"duration": 100, "lossless": True} if ending == "webp" else {}
        frames[0].save(others / f"several-pillow.{ending}", save_all=True, append_images=frames[1:], **options)
    frames[0].resize((20, 10)).save(others / "part.png")
    run("cwebp", "-quiet", "-lossless", "others/part.png", "-o", "others/part.webp")
    run("webpmux", "-frame", "others/part.webp", "+100+6+4", "-frame", "others/part.webp", "+100+20+20", "-o",
        "others/part-webpmux.webp")
    (others / "part.png").unlink()
    (others / "part.webp").unlink()
    run("convert", "-size", "60x40", "xc:none", "-page", "+6+4", "(", "-size", "20x10", "xc:red", ")", "-delete", "0",
        "-repage", "60x40+6+4", "others/part-imagemagick.gif")
    run("convert", "true.ppm", "-interlace", "PNG", "others/true-interlaced.png")
    run("convert", "all256.ppm", "-type", "palette", "-compress", "RLE", "others/all256-packed.bmp")
    run("convert", "true.ppm", "-endian", "MSB", "-compress", "zip", "others/true-bigendian.tif")
    large = true.resize((1000, 700), Image.Resampling.NEAREST).quantize(8)
    large.save(others / "large-pillow.png")


fixtures.mkdir(exist_ok=True)
(fixtures / "others").mkdir(exist_ok=True)
if sys.argv[1:] != ["others"]:
    for old in (*fixtures.glob("*.ppm"), *fixtures.glob("*.pcx")):
        old.unlink()
    write_sources()
    write_pcx()
for old in (fixtures / "others").iterdir():
    old.unlink()
write_others()
