with sold as (
  select strftime('%Y-%m', o.OrderDate) as month, p.CategoryID, l.Quantity * l.UnitPrice * (1 - l.Discount) as amount
  from "Order Lines" as l
  join Orders as o on o.OrderID = l.OrderID and o.OrderDate like '2025-%' and o.Status in ('O', 'S', 'H')
  join Products as p on p.ProductID = l.ProductID
)
select s.month, k.CategoryName, round(sum(s.amount), 2) as turnover
from sold as s
join Categories as k on k.CategoryID = s.CategoryID
group by s.month, k.CategoryID
order by turnover desc, s.month, k.CategoryName
