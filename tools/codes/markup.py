"""Small pieces of the help pages' HTML. What is passed as `text` is plain, what is passed as `html` is markup."""

from html import escape

_PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>{title}</title>
</head>
<body>
<h1>{heading}</h1>
{body}
</body>
</html>
"""


def page(title, heading, parts):
    """A whole page; `title` and `heading` are text, `parts` html."""
    return _PAGE.format(title=text(title), heading=text(heading), body="\n".join(part for part in parts if part))


def text(plain):
    return escape(plain, quote=False)


def paragraph(html, kind=None):
    return f"<p{_class(kind)}>{html}</p>"


def heading(plain, anchor=None):
    name = f'<a name="{anchor}"></a>' if anchor else ""
    return f"<h2>{name}{text(plain)}</h2>"


def code(plain):
    return f"<code>{text(plain)}</code>"


def codes(plains):
    return ", ".join(code(plain) for plain in plains)


def link(target, html):
    return f'<a href="{target}">{html}</a>'


def example(plain):
    return f'<pre class="example">{text(plain)}</pre>'


def table(headings, rows):
    """`headings` are text, the cells of `rows` html; without headings the first cell of each row heads it."""
    lines = ['<table class="reference" border="1" cellspacing="0" cellpadding="4" width="100%">']
    if headings:
        lines.append("<tr>" + "".join(f'<th align="left">{text(plain)}</th>' for plain in headings) + "</tr>")
    for cells in rows:
        first = "" if headings else f'<th align="left" valign="top">{cells[0]}</th>'
        rest = cells if headings else cells[1:]
        lines.append(f"<tr>{first}" + "".join(f'<td valign="top">{html}</td>' for html in rest) + "</tr>")
    return "\n".join(lines + ["</table>"])


def _class(kind):
    return f' class="{kind}"' if kind else ""
