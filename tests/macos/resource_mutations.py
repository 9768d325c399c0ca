"""What can be wrong with the files of the bundle, and with what is in them."""

import plistlib
import struct

import resource_checks as checks
import seal_checks
from build import PROJECT, legacy_identifier
from mutation import mutation, replace


def edit_information(build, edit):
    path = build.contents / "Info.plist"
    values = plistlib.loads(path.read_bytes())
    edit(values)
    path.write_bytes(plistlib.dumps(values))


@mutation(checks.what_is_in_it, seal_checks.sealed_files)
def a_file_that_does_not_belong(build):
    (build.contents / "Resources/.DS_Store").write_bytes(b"")


@mutation(checks.what_is_in_it, checks.type_and_creator)
def a_file_missing(build):
    (build.contents / "PkgInfo").unlink()


@mutation(checks.what_is_in_it)
def a_script_that_cannot_be_run(build):
    (build.contents / "Resources/uninstall-as-admin.sh").chmod(0o644)


@mutation(checks.what_is_in_it)
def an_executable_that_others_may_write(build):
    build.executable.chmod(0o777)


@mutation(checks.what_is_in_it)
def a_link_instead_of_a_file(build):
    script = build.contents / "Resources/uninstall-as-admin.sh"
    script.unlink()
    script.symlink_to(PROJECT / "admin/uninstall-as-admin.sh")


@mutation(checks.script, seal_checks.sealed_files)
def a_script_with_a_line_more(build):
    with open(build.contents / "Resources/uninstall-as-admin.sh", "a", encoding="ascii") as script:
        script.write("\n")


@mutation(checks.information_list, seal_checks.signature)
def a_list_that_ends_early(build):
    replace(build.contents / "Info.plist", b"</dict>", b"")


@mutation(checks.information_list, seal_checks.signature)
def another_version(build):
    edit_information(build, lambda values: values.update(CFBundleVersion="0.9"))


@mutation(checks.information_list, seal_checks.signature)
def a_key_missing(build):
    edit_information(build, lambda values: values.pop("NSAppleEventsUsageDescription"))


@mutation(checks.information_list, seal_checks.signature)
def a_folder_that_is_asked_for_without_a_reason(build):
    edit_information(build, lambda values: values.update(NSDownloadsFolderUsageDescription=""))


@mutation(checks.information_list, seal_checks.signature)
def a_key_more(build):
    edit_information(build, lambda values: values.update(LSUIElement=True))


@mutation(checks.information_list, seal_checks.signature)
def an_identifier_below_that_of_the_product(build):
    edit_information(build, lambda values: values.update(CFBundleIdentifier=legacy_identifier() + ".x"))


def edit_entitlements(build, edit):
    values = plistlib.loads(build.entitlements.read_bytes())
    edit(values)
    build.entitlements = build.folder / "entitlements.plist"
    build.entitlements.write_bytes(plistlib.dumps(values))


@mutation(checks.entitlements)
def an_entitlement_missing(build):
    edit_entitlements(build, lambda values: values.clear())


@mutation(checks.entitlements)
def an_entitlement_more(build):
    edit_entitlements(build, lambda values: values.update({"com.apple.security.cs.disable-library-validation": True}))


@mutation(checks.entitlements)
def a_comment_with_two_hyphens_in_the_entitlements(build):
    edit_entitlements(build, lambda values: None)
    replace(build.entitlements, b"<dict>", b"<!-- as with --options --><dict>")


@mutation(checks.type_and_creator)
def another_type(build):
    replace(build.contents / "PkgInfo", b"APPL", b"BNDL")


@mutation(checks.picture, seal_checks.sealed_files)
def a_picture_of_another_size(build):
    # The width of the largest one, which is the last.
    path = build.contents / "Resources/kelmar-uninstaller.icns"
    data = path.read_bytes()
    place = data.rindex(b"IHDR") + 4
    path.write_bytes(data[:place] + struct.pack(">I", 1000) + data[place + 4 :])


@mutation(checks.picture, seal_checks.sealed_files)
def a_byte_of_a_picture(build):
    path = build.contents / "Resources/kelmar-uninstaller.icns"
    data = bytearray(path.read_bytes())
    data[data.rindex(b"IDAT") + 1000] ^= 1
    path.write_bytes(data)


@mutation(checks.picture, seal_checks.sealed_files)
def a_size_missing(build):
    replace(build.contents / "Resources/kelmar-uninstaller.icns", b"ic11", b"free")


@mutation(checks.picture, seal_checks.sealed_files)
def an_icon_cut_off(build):
    path = build.contents / "Resources/kelmar-uninstaller.icns"
    path.write_bytes(path.read_bytes()[:-100])


@mutation(checks.picture, seal_checks.sealed_files)
def a_run_of_pixels_too_long(build):
    path = build.contents / "Resources/kelmar-uninstaller.icns"
    data = bytearray(path.read_bytes())
    place = data.index(b"is32") + 8
    assert data[place] >= 128
    data[place] += 1
    path.write_bytes(data)


@mutation(checks.size, checks.picture, seal_checks.sealed_files)
def a_bundle_too_large(build):
    with open(build.contents / "Resources/kelmar-uninstaller.icns", "ab") as picture:
        picture.write(bytes(checks.MOST_BYTES))
