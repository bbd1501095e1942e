"""build_site.py MODULE FOLDER: makes of the compiled module the site, FOLDER/site, and the one file,
FOLDER/onze-tables.html."""

import base64
import hashlib
import json
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).parents[2]
WEB = ROOT / "src" / "platform" / "web"
FONTS = Path("/usr/share/fonts/truetype/liberation2")
FACES = {"regular": "LiberationSans-Regular.ttf", "bold": "LiberationSans-Bold.ttf"}
# What French texts and the program's own are written with.
LETTERS = "U+0020-007E,U+00A0-00FF,U+0152,U+0153,U+0178,U+2013,U+2014,U+2018-201E,U+2026,U+2212,U+2260"
DROPPED = "--drop-tables+=FFTM", "--name-IDs=0,13,14"  # the face's own name is for the unchanged one
# In the order in which they need one another.
SCRIPTS = "program pictures files canvas sounds reading input counters paper margin calendar browser".split()
POLICY = (
    "default-src 'none'; script-src {scripts} 'wasm-unsafe-eval'; style-src {style}; img-src 'self' data: blob:; "
    "connect-src 'self'; font-src 'self'; manifest-src 'self'; worker-src 'self'; base-uri 'none'; form-action 'none'"
)
SITE_LINKS = """<link rel="manifest" href="manifest.json">
<link rel="icon" type="image/png" href="icons/48.png">
<link rel="apple-touch-icon" href="icons/180.png">"""


def script():
    """The modules as one, in which each knows the names of the others."""
    modules = [(WEB / f"{name}.mjs").read_text() for name in SCRIPTS]
    text = "".join(re.sub(r"^import [^;]*;\n", "", module, flags=re.M) for module in modules)
    return re.sub(r"^export ", "", text, flags=re.M)


def check_script(scratch):
    """One scope holds the names of all modules, each once."""
    module = scratch / "script.mjs"
    module.write_text(script())
    subprocess.run(["node", "--check", module], check=True)


def digest(text):
    return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"


def fill(template, **values):
    for name, value in values.items():
        template = template.replace(f"@{name.upper()}@", value)
    return template


def page(version, links, data=""):
    """The page with its script and style inside, and allowed nothing else."""
    check, style = (WEB / "check.js").read_text(), (WEB / "style.css").read_text()
    policy = POLICY.format(scripts=f"{digest(check)} {digest(script())}", style=digest(style))
    return fill((WEB / "index.html").read_text(), version=version, policy=policy, links=links, check=check, style=style,
                data=data, script=script())


def icon(pixels, full=False):
    """As PNG; a full one leaves its edges to be cut off."""
    command = ["rsvg-convert", "--format=png", ROOT / "art" / "output" / "onze-tables.svg"]
    inside = pixels * 3 // 4 if full else pixels
    command += [f"--width={inside}", f"--height={inside}", f"--page-width={pixels}", f"--page-height={pixels}"]
    command += [f"--left={(pixels - inside) // 2}", f"--top={(pixels - inside) // 2}"]
    if full:
        command += ["--background-color=#559CCB"]
    return subprocess.run(command, check=True, capture_output=True).stdout


def font(face, folder):
    subset = folder / face
    command = [sys.executable, "-m", "fontTools.subset", FONTS / face, f"--output-file={subset}", "--flavor=woff2"]
    subprocess.run([*command, f"--unicodes={LETTERS}", "--no-hinting", "--layout-features=kern", *DROPPED], check=True)
    return subset.read_bytes()


def program_files(module, folder):
    """What the program reads, by its paths in the site."""
    files = {"onze-tables.wasm": module.read_bytes()}
    for name, face in FACES.items():
        files[f"fonts/{name}.woff2"] = font(face, folder)
    for path in sorted((ROOT / "datas").iterdir()):
        files[f"datas/{path.name}"] = path.read_bytes()
    for name in ("anim", "anim.3x"):
        files[f"datas/{name}"] = (ROOT / "art" / "output" / f"{name}.png").read_bytes()
    return files


def digest_of(data):
    return hashlib.sha256(data).hexdigest()


def site_files(files):
    """The same, with the page and what a browser needs to install it."""
    site = {**files, "manifest.json": (WEB / "manifest.json").read_bytes()}
    for pixels in (48, 180, 192, 512):
        site[f"icons/{pixels}.png"] = icon(pixels)
    site["icons/512-plein.png"] = icon(512, full=True)
    worker = (WEB / "service_worker.js").read_text()
    version = digest_of(b"".join([*site.values(), page("", SITE_LINKS).encode(), worker.encode()]))[:12]
    site["index.html"] = page(version, SITE_LINKS).encode()
    digests = {"./" if path == "index.html" else path: digest_of(data) for path, data in site.items()}
    site["service_worker.js"] = fill(worker, version=version, files=json.dumps(digests, indent=4)).encode()
    return {**site, "fonts/LICENSE": licence()}


def licence():
    return Path("/usr/share/doc/fonts-liberation2/copyright").read_bytes()


def one_file(files):
    data = "".join(
        f'<script type="application/octet-stream" id="{path}">{base64.b64encode(bytes_).decode()}</script>\n'
        for path, bytes_ in files.items()
    )
    small_icon = base64.b64encode(icon(48)).decode()
    return page("", f'<link rel="icon" type="image/png" href="data:image/png;base64,{small_icon}">', data)


def build(module, folder):
    site = folder / "site"
    shutil.rmtree(site, ignore_errors=True)
    with tempfile.TemporaryDirectory() as scratch:
        check_script(Path(scratch))
        files = program_files(module, Path(scratch))
    for path, data in site_files(files).items():
        (site / path).parent.mkdir(parents=True, exist_ok=True)
        (site / path).write_bytes(data)
    (folder / "onze-tables.html").write_text(one_file(files))


if __name__ == "__main__":
    build(Path(sys.argv[1]), Path(sys.argv[2]))
