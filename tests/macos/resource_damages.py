"""What can be wrong with the files of the bundle, and with what is in them."""

import plistlib
import struct

import resource_checks as checks
from damage import damage, replace
from made import PROJECT, legacy_identifier


def edit_information(made, edit):
    path = made.contents / "Info.plist"
    values = plistlib.loads(path.read_bytes())
    edit(values)
    path.write_bytes(plistlib.dumps(values))


@damage(checks.what_is_in_it)
def a_file_that_does_not_belong(made):
    (made.contents / "Resources/.DS_Store").write_bytes(b"")


@damage(checks.what_is_in_it, checks.type_and_creator)
def a_file_missing(made):
    (made.contents / "PkgInfo").unlink()


@damage(checks.what_is_in_it)
def a_script_that_cannot_be_run(made):
    (made.contents / "Resources/uninstall-as-admin.sh").chmod(0o644)


@damage(checks.what_is_in_it)
def an_executable_that_others_may_write(made):
    made.executable.chmod(0o777)


@damage(checks.what_is_in_it)
def a_link_instead_of_a_file(made):
    script = made.contents / "Resources/uninstall-as-admin.sh"
    script.unlink()
    script.symlink_to(PROJECT / "admin/uninstall-as-admin.sh")


@damage(checks.script)
def a_script_with_a_line_more(made):
    with open(made.contents / "Resources/uninstall-as-admin.sh", "a", encoding="ascii") as script:
        script.write("\n")


@damage(checks.information_list)
def a_list_that_ends_early(made):
    replace(made.contents / "Info.plist", b"</dict>", b"")


@damage(checks.information_list)
def another_version(made):
    edit_information(made, lambda values: values.update(CFBundleVersion="0.9"))


@damage(checks.information_list)
def a_key_missing(made):
    edit_information(made, lambda values: values.pop("NSAppleEventsUsageDescription"))


@damage(checks.information_list)
def a_key_more(made):
    edit_information(made, lambda values: values.update(LSUIElement=True))


@damage(checks.information_list)
def an_identifier_below_that_of_the_product(made):
    edit_information(made, lambda values: values.update(CFBundleIdentifier=legacy_identifier() + ".x"))


def edit_entitlements(made, edit):
    values = plistlib.loads(made.entitlements.read_bytes())
    edit(values)
    made.entitlements = made.folder / "entitlements.plist"
    made.entitlements.write_bytes(plistlib.dumps(values))


@damage(checks.entitlements)
def an_entitlement_missing(made):
    edit_entitlements(made, lambda values: values.clear())


@damage(checks.entitlements)
def an_entitlement_more(made):
    edit_entitlements(made, lambda values: values.update({"com.apple.security.cs.disable-library-validation": True}))


@damage(checks.type_and_creator)
def another_type(made):
    replace(made.contents / "PkgInfo", b"APPL", b"BNDL")


@damage(checks.picture)
def a_picture_of_another_size(made):
    # The width of the largest one, which is the last.
    path = made.contents / "Resources/kelmar-uninstaller.icns"
    data = path.read_bytes()
    place = data.rindex(b"IHDR") + 4
    path.write_bytes(data[:place] + struct.pack(">I", 1000) + data[place + 4 :])


@damage(checks.picture)
def a_byte_of_a_picture(made):
    path = made.contents / "Resources/kelmar-uninstaller.icns"
    data = bytearray(path.read_bytes())
    data[data.rindex(b"IDAT") + 1000] ^= 1
    path.write_bytes(data)


@damage(checks.picture)
def a_size_missing(made):
    replace(made.contents / "Resources/kelmar-uninstaller.icns", b"ic11", b"free")


@damage(checks.picture)
def an_icon_cut_off(made):
    path = made.contents / "Resources/kelmar-uninstaller.icns"
    path.write_bytes(path.read_bytes()[:-100])


@damage(checks.picture)
def a_run_of_pixels_too_long(made):
    path = made.contents / "Resources/kelmar-uninstaller.icns"
    data = bytearray(path.read_bytes())
    place = data.index(b"is32") + 8
    assert data[place] >= 128
    data[place] += 1
    path.write_bytes(data)


@damage(checks.size, checks.picture)
def a_bundle_too_large(made):
    with open(made.contents / "Resources/kelmar-uninstaller.icns", "ab") as picture:
        picture.write(bytes(checks.MOST_BYTES))
