-- param Since=2025-04-01
with last_orders as (
  select CustomerID, max(OrderDate) as last_day from Orders group by CustomerID
)
select c.CustomerID, c.Company, c.Phone, c.City, c.CustomerSince
from Customers as c
join last_orders as t on t.CustomerID = c.CustomerID
where t.last_day < :Since and (c.Segment = 'W' or c.Segment = 'T')
order by c.Company, c.CustomerSince, c.CustomerID
