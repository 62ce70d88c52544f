#!/usr/bin/python3
"""Makes the picture files of this folder (Debian: python3-pil libimage-exiftool-perl imagemagick libheif-examples libavif-bin
libjxl-tools). Shown upright, nearly all are 64 x 48 pixels with red and green quarters above blue and white ones."""
import io
import struct
import subprocess

from PIL import Image, ImageCms

RED, GREEN, BLUE, WHITE = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 255)


def quarters(colours=(RED, GREEN, BLUE, WHITE), mode='RGB'):
    picture = Image.new(mode, (64, 48))
    for x in range(64):
        for y in range(48):
            picture.putpixel((x, y), colours[(x >= 32) + 2 * (y >= 24)])
    return picture


def run(*command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def fixed(*numbers):
    return b''.join(struct.pack('>i', round(number * 65536)) for number in numbers)


def display_p3():
    """A matrix profile (ICC.1:2001) with Display P3 primaries and the sRGB curve."""
    description = b'Display P3 primaries\0'
    curve = b'para\0\0\0\0' + struct.pack('>HH', 3, 0) + fixed(2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045)
    tags = [(b'desc', b'desc\0\0\0\0' + struct.pack('>I', len(description)) + description + b'\0' * 78),
            (b'cprt', b'text\0\0\0\0Public domain\0'),
            (b'wtpt', b'XYZ \0\0\0\0' + fixed(0.9642, 1.0, 0.8249)),
            (b'rXYZ', b'XYZ \0\0\0\0' + fixed(0.51512, 0.24120, -0.00105)),
            (b'gXYZ', b'XYZ \0\0\0\0' + fixed(0.29198, 0.69225, 0.04189)),
            (b'bXYZ', b'XYZ \0\0\0\0' + fixed(0.15710, 0.06657, 0.78407)),
            (b'rTRC', curve), (b'gTRC', curve), (b'bTRC', curve)]
    offset = 128 + 4 + 12 * len(tags)
    table, data = struct.pack('>I', len(tags)), b''
    for name, value in tags:
        value += b'\0' * (-len(value) % 4)
        table += name + struct.pack('>II', offset + len(data), len(value))
        data += value
    head = struct.pack('>I4xI4s4s4s', offset + len(data), 0x02400000, b'mntr', b'RGB ', b'XYZ ')
    head += struct.pack('>6H', 2026, 1, 1, 0, 0, 0) + b'acsp' + b'\0' * 28 + fixed(0.9642, 1.0, 0.8249)
    return head.ljust(128, b'\0') + table + data


profile = display_p3()
turns = [None, Image.FLIP_LEFT_RIGHT, Image.ROTATE_180, Image.FLIP_TOP_BOTTOM, Image.TRANSPOSE, Image.ROTATE_90,
         Image.TRANSVERSE, Image.ROTATE_270]
for number, turn in enumerate(turns, 1):
    name = f'orientation-{number}.jpg'
    (quarters() if turn is None else quarters().transpose(turn)).save(name, quality=92, subsampling=0)
    run('exiftool', '-q', '-overwrite_original', f'-Orientation#={number}', '-Make=Fixture', '-GPSLatitude=48.1',
        '-GPSLatitudeRef=N', '-GPSLongitude=11.5', '-GPSLongitudeRef=E', '-XMP-dc:Title=secret title',
        '-IPTC:City=secretcity', name)
run('cjxl', 'orientation-6.jpg', 'orientation-6.jxl')

turned = quarters().transpose(Image.ROTATE_90)
turned.save('rotated.webp', lossless=True)
turned.save('rotated.tif', compression='tiff_lzw')
turned.save('rotated.png')
for name in ('rotated.webp', 'rotated.tif', 'rotated.png'):
    run('exiftool', '-q', '-overwrite_original', '-Orientation#=6', name)
run('avifenc', '--irot', '3', '--min', '5', '--max', '10', 'rotated.png', 'rotated.avif')

quarters().save('quarters.png')
quarters().save('quarters.webp', lossless=True)
quarters().save('quarters.tif', compression='tiff_lzw')
frames = [quarters(), quarters((WHITE, BLUE, GREEN, RED))]
frames = [frame.convert('P', palette=Image.ADAPTIVE) for frame in frames]
frames[0].save('animated.gif', save_all=True, append_images=frames[1:], duration=100)
run('heif-enc', '-q', '90', '-p', 'chroma=444', 'quarters.png', '-o', 'quarters.heic')
run('avifenc', '--min', '5', '--max', '10', 'quarters.png', 'quarters.avif')
run('cjxl', 'quarters.png', 'quarters.jxl', '-d', '0')

# Red, a darker green, blue and white of sRGB, stored in the wider colour space.
wide = ImageCms.buildTransform(ImageCms.createProfile('sRGB'), ImageCms.ImageCmsProfile(io.BytesIO(profile)), 'RGB', 'RGB', 1)
picture = ImageCms.applyTransform(quarters((RED, (0, 200, 0), BLUE, WHITE)), wide)
picture.save('display-p3.jpg', quality=97, subsampling=0, icc_profile=profile)
picture.save('display-p3.png', icc_profile=profile)
run('heif-enc', '-q', '90', '-p', 'chroma=444', 'display-p3.png', '-o', 'display-p3.heic')

inks = ((0, 255, 255, 0), (255, 0, 255, 0), (255, 255, 0, 0), (0, 0, 0, 0))
quarters(inks, 'CMYK').save('cmyk.jpg', quality=95)
quarters((0, 80, 160, 255), 'L').save('grey.jpg', quality=95)
quarters((0, 80, 160, 255), 'L').save('grey-with-rgb-profile.jpg', quality=95, icc_profile=profile)
quarters((RED + (255,), GREEN + (0,), BLUE + (128,), WHITE + (255,)), 'RGBA').save('transparent.png')

depth = ('-define', 'png:bit-depth=16', '-define')
run('convert', 'quarters.png', '-depth', '16', '-fill', 'srgb(100%,50%,25%)', '-draw', 'rectangle 0,0 31,23', *depth,
    'png:color-type=2', '16bit.png')
with open('display-p3.icc', 'wb') as file:
    file.write(profile)
run('convert', 'transparent.png', *depth, 'png:color-type=6', '16bit-alpha.png')
run('convert', '16bit-alpha.png', '-profile', 'display-p3.icc', *depth, 'png:color-type=6', '16bit-alpha-p3.png')
run('rm', 'display-p3.icc', '16bit-alpha.png')
